// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QProcess>

class QDialogButtonBox;
class QGroupBox;
class QLabel;
class QProgressBar;
class QTextDocument;
class QTextEdit;

/// Progress of a download and of the installation after it, with the installer's output on request.
/// canceled() is its only signal, and comes at most once. Deletes itself when it is closed after the end.
class BusyDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BusyDialog)

public:
    explicit BusyDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    BusyDialog(const QString &labelText, const QString &cancelText, int minimum, int maximum,
               QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~BusyDialog() override;

    /// Follows this process's output from now on instead of an earlier one's. Not owned.
    void processOutputToDetails(QProcess *proc);
    void setAutoReset(bool on);
    void setAutoClose(bool on);
    bool wasCanceled() const { return m_wasCanceled; }

public Q_SLOTS:
    void finished();
    void disableCancel();
    void setDetailsChecked(bool checked);
    void showDetails();
    void hideDetails();
    void appendProcessStderr();
    void appendProcessStdout();
    void cancel();
    void reset();
    void setCancelButtonText(const QString &text);
    void setLabelText(const QString &text);
    void setMaximum(int max);
    void setMinimum(int min);
    void setRange(int min, int max);
    void setValue(int val);
    void changeEvent(QEvent *event) override;
    void retranslateUi();
    void enterInstallPhase();
    void processError(QProcess::ProcessError err);
    void logContents();
    /// Bytes; shown as whole KiB.
    void progress(qint64 bytesReceived, qint64 bytesTotal);
    void incValueChanged(int value);
    void processDestroyed(QObject *obj);

Q_SIGNALS:
    void canceled();

private:
    bool m_wasCanceled = false;
};
