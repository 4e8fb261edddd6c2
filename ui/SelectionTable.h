// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "network/RVAccess.h"
#include "repository/RVSelection.h"
#include "ui/ImageInstallBox.h"

#include <QHash>
#include <QList>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QPointer>
#include <QProcess>
#include <QSslError>
#include <QTableWidget>
#include <QUrl>
#include <QVector>

class BusyDialog;
class OSInfoBaseClass;
class RVInstallProc;
struct RVResult;
class TableLabelItem;
class TableRadioButtonItem;

/// The updates of one section: what is installed, what is offered, and which of them the user
/// wants. A table is never refilled; its control frame makes a new one after each refresh. Each
/// installation ends with exactly one installFinished(); installError() comes before it when the
/// installer did not succeed. A table must live until then: see isInstalling().
class SelectionTable : public QTableWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SelectionTable)

public:
    enum SelectionTableType {
        CheckBoxes = 0, ///< any number of rows
        RadioButtons = 1, ///< exactly one row
    };
    enum CurrentVersionType {
        VersionUnknown = RVProposal::Unknown,
        NotInstalled = RVProposal::NotInstalled,
        VersionKnown = RVProposal::Known,
        NotConfigured = RVProposal::NotConfigured,
    };
    enum Column {
        ChoiceColumn,
        UpdateColumn,
        InstalledColumn,
        OfferedColumn,
        ColumnCount,
    };

    /// Row i shows entry i. Without `osInfo` every installed version is unknown.
    SelectionTable(const QList<RVData> &entries, SelectionTableType type,
                   const OSInfoBaseClass *osInfo, QWidget *parent = nullptr,
                   const RVPaths &paths = {});
    ~SelectionTable() override;

    SelectionTableType tableType() const { return m_type; }
    /// An empty host or a port of 0 or less means no proxy. Used from the next installation on.
    void setProxy(const QString &host, int port);
    /// What the installation's transfers are given: the repository's.
    void setAccess(const RVAccess &access) { m_access = access; }
    /// How many seconds an installation waits for locks before it asks the user.
    void setPatience(int seconds) { m_patience = seconds; }
    /// Between install() and installFinished().
    bool isInstalling() const { return m_procedure != nullptr; }

    /// What the user chose otherwise than the table proposed, by archive; entries that were handed
    /// to an installation no longer count.
    QHash<QUrl, Qt::CheckState> userChoices() const;
    void restoreUserChoices(const QHash<QUrl, Qt::CheckState> &choices);

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Of the selected row, or of the first chosen one.
    void showDetails();
    /// Installs the chosen rows in their order. Does nothing while an installation runs.
    void install();
    void setAuthenticationCredentials(const QString &user, const QString &password);
    /// Choose every row or none; nothing in a radio table.
    void selectAll() override;
    void selectNone();
    void radioClicked(int row, int col);
    void incInstallFinished(int exitCode, QProcess::ExitStatus exitStatus);
    void relayNetworkError(const QNetworkReply *reply);
    void relayProcessError(QProcess::ProcessError error);
    void relayAuthenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void relayProxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors);
    void retranslateUi();

Q_SIGNALS:
    void installFinished();
    void installError();
    void networkError(const QNetworkReply *reply);
    void authenticationRequired(QNetworkReply *reply, QAuthenticator *auth);
    void proxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *auth);
    void sslErrors(QNetworkReply *reply, const QList<QSslError> &errors);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Row {
        CurrentVersionType current = VersionUnknown;
        bool upToDate = false;
        /// What the table proposes.
        Qt::CheckState proposed = Qt::Unchecked;
    };

    void fillRow(int row, const RVProposal &proposal);
    void toggle(int row);
    void retranslateDialog();
    void applyFonts();
    void fitToContents();
    void takeChoicesAsDone(const RVResult &result);
    void endInstallation(const RVResult &result);

    const RVPaths m_paths;
    ImageInstallBox m_imageQuestion;
    const QList<RVData> m_entries;
    const SelectionTableType m_type;
    TableRadioButtonItem *m_radioItem = nullptr;
    TableLabelItem *m_labelItem;
    QVector<Row> m_rows;
    int m_fixedWidth = 0;
    RVAccess m_access;
    RVInstallProc *m_procedure = nullptr;
    QPointer<BusyDialog> m_busyDialog;
    bool m_isRetrieving = false;
    int m_patience = 60;
};
