// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "install/RVResult.h"

#include <QDialog>
#include <QList>
#include <QProcess>
#include <QTextDecoder>
#include <QTimer>
#include <QVector>

#include <memory>

class QDialogButtonBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QTextDocument;
class QTextEdit;
class RVInstallProc;

/// Progress of a download and of the installation after it, with the installer's output on request.
/// canceled() is its only signal, and comes at most once. Closing the dialog means Cancel while
/// there is a Cancel button and nothing while there is none; after the end it closes, and deletes
/// itself. The details hold the last 20,000 lines and 2 Mi characters of the output, in lines of at
/// most a thousand: an installer can write for hours.
class BusyDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(BusyDialog)

public:
    explicit BusyDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    BusyDialog(const QString &labelText, const QString &cancelText, int minimum, int maximum,
               QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~BusyDialog() override;

    /// Follows one installation, to which Cancel then goes; the dialog deletes itself at a Cancel.
    /// Whoever started it says how it ends: finished(). Not owned.
    void follow(RVInstallProc *procedure);
    /// Follows this process's output from now on instead of an earlier one's. Not owned.
    void processOutputToDetails(QProcess *proc);
    void setAutoReset(bool on);
    void setAutoClose(bool on);
    bool wasCanceled() const { return m_wasCanceled; }
    /// What finished() shows: the label's summary and a list of the updates; the bar goes where not
    /// everything was installed.
    void setResult(const RVResult &result);

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
    /// Why nothing is installed, in the details.
    void showFault(const QString &text);
    /// Of something other than the process that is followed.
    void showOutput(const QByteArray &bytes);
    void logContents();
    /// Bytes; shown as whole KiB.
    void progress(qint64 bytesReceived, qint64 bytesTotal);
    void incValueChanged(int value);
    void processDestroyed(QObject *obj);

    /// Closing, and the Escape key.
    void reject() override;

Q_SIGNALS:
    void canceled();

protected:
    bool event(QEvent *event) override;

private Q_SLOTS:
    void flushOutput();

private:
    /// One of the two output channels of the process.
    struct Channel {
        std::unique_ptr<QTextDecoder> decoder;
        int column = 0;
        bool afterReturn = false;
        bool isError = false;
    };
    struct Output {
        QByteArray bytes;
        Channel *channel;
    };
    struct Text {
        QString text;
        bool isError;
    };

    /// Which of the dialog's own texts the bar shows, so that it can be said in another language.
    enum BarText {
        NoBarText,
        AmountText,
        DoneText,
    };

    void setup(const QString &labelText, const QString &cancelText, int minimum, int maximum);
    void applyCancelText(const QString &text);
    void updateNames();
    void setBarText(BarText text);
    void showResult();
    static QString stateText(RVItemResult::State state);
    void resetChannels();
    void append(Channel &channel, const QByteArray &bytes);
    static QString decoded(Channel &channel, const QByteArray &bytes);
    /// Leaves the last lines that the view shows; false when that is all.
    static bool keepLastLines(QVector<Text> *texts);
    void dropPending();
    void appendText(const QString &text, bool isError);
    void trimDetails(bool isCut);
    void scrollToEnd();
    QPushButton *cancelButton() const;
    QPushButton *closeButton() const;

    QLabel *m_label = nullptr;
    bool m_labelTextIsDefault = false;
    bool m_labelSaysInstalling = false;
    BarText m_barText = NoBarText;
    bool m_cancelTextIsDefault = false;
    QString m_cancelText;
    QProgressBar *m_progressBar = nullptr;
    QDialogButtonBox *m_buttonBox = nullptr;
    bool m_autoClose = true;
    bool m_autoReset = true;
    bool m_wasCanceled = false;
    bool m_isFinished = false;
    RVResult m_result;
    QListWidget *m_results = nullptr;
    QGroupBox *m_detailsBox = nullptr;
    QTextDocument *m_document = nullptr;
    QTextEdit *m_detailsView = nullptr;
    QProcess *m_process = nullptr;

    Channel m_standardOutput;
    Channel m_standardError;
    /// Output that is not in the document yet: runs of one channel, in order of arrival.
    QList<Output> m_pending;
    int m_pendingSize = 0;
    /// There was more than the view can show.
    bool m_isPendingCut = false;
    QTimer m_flushTimer;
};
