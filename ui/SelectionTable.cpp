// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/SelectionTable.h"

#include "core/OSInfoBaseClass.h"
#include "core/RVLogger.h"
#include "core/RVText.h"
#include "descriptor/DataXML.h"
#include "install/RVInstallProc.h"
#include "ui/BusyDialog.h"
#include "ui/ItemDetailsDialog.h"
#include "ui/RVChoiceItem.h"
#include "ui/RVInstallGate.h"
#include "ui/RVItalics.h"
#include "ui/TableLabelItem.h"
#include "ui/TableRadioButtonItem.h"

#include <QAuthenticator>
#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QResizeEvent>

namespace
{

constexpr int longestText = 500;
constexpr int unshrunkLength = 7;
constexpr int smallestHeight = 126;
constexpr int largestHeight = 300;
constexpr int smallestLabelWidth = 50;
// Line height up to which the pixel heights do; they grow with a larger font.
constexpr int referenceLine = 22;

// Names, titles and versions come from a server: what is shown of them is bounded.
// Tells a screen reader what is chosen or not; its own text is empty.
class ChoiceItem : public QTableWidgetItem
{
public:
    QVariant data(int role) const override
    {
        if (role != Qt::AccessibleTextRole) {
            return QTableWidgetItem::data(role);
        }
        return (checkState() == Qt::Checked
                    ? SelectionTable::tr("%1, selected",
                                         "accessible text; the argument is an update")
                    : SelectionTable::tr("%1, not selected",
                                         "accessible text; the argument is an update"))
            .arg(QTableWidgetItem::data(role).toString());
    }
};

// A version reads from left to right in every language.
class VersionDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->direction = Qt::LeftToRight;
    }
};

QTableWidgetItem *versionItem()
{
    auto *item = new QTableWidgetItem;
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    item->setTextAlignment(Qt::AlignCenter);
    return item;
}

void setVersion(QTableWidgetItem *item, const QString &version)
{
    const QString text = RVText::shown(version, longestText);
    item->setText(text);
    item->setData(Qt::AccessibleTextRole, text);
    // A long version is drawn too small to read. Tool tips guess at markup: leave them no choice.
    item->setToolTip(text.size() > unshrunkLength
                         ? QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped())
                         : QString());
}

QFont versionFont(QFont font, const QString &version, bool bold)
{
    if (version.size() > unshrunkLength) {
        const qreal size = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
        font.setPointSizeF(static_cast<float>(size) * unshrunkLength
                           / static_cast<float>(version.size()));
    }
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    return font;
}

} // namespace

SelectionTable::SelectionTable(const QList<RVData> &entries, SelectionTableType type,
                               const OSInfoBaseClass *osInfo, QWidget *parent, const RVPaths &paths)
    : QTableWidget(entries.size(), ColumnCount, parent)
    , m_paths(paths)
    , m_imageQuestion(paths)
    , m_entries(entries)
    , m_type(type)
    , m_labelItem(new TableLabelItem(true, this))
    , m_rows(entries.size())
{
    setObjectName(QStringLiteral("RVSelectionTable"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setSortingEnabled(false);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setItemDelegateForColumn(UpdateColumn, m_labelItem);
    auto *versions = new VersionDelegate(this);
    setItemDelegateForColumn(InstalledColumn, versions);
    setItemDelegateForColumn(OfferedColumn, versions);
    if (m_type == RadioButtons) {
        m_radioItem = new TableRadioButtonItem(this);
        setItemDelegateForColumn(ChoiceColumn, m_radioItem);
    } else {
        setItemDelegateForColumn(ChoiceColumn,
                                 new RVChoiceItem(QStyle::PE_IndicatorCheckBox, this));
    }
    const QVector<RVProposal> proposed = proposals(m_entries, osInfo, m_type == RadioButtons);
    for (int row = 0; row < m_entries.size(); ++row) {
        fillRow(row, proposed.at(row));
    }
    verticalHeader()->hide();
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    if (m_type == RadioButtons) {
        setColumnHidden(InstalledColumn, true);
        horizontalHeader()->hide();
        connect(this, &QTableWidget::cellClicked, this, &SelectionTable::radioClicked);
    } else {
        connect(this, &QTableWidget::cellClicked, this, [this](int row, int column) {
            if (column == ChoiceColumn) {
                toggle(row);
            }
        });
    }
    retranslateUi();
    applyFonts();
    fitToContents();
}

SelectionTable::~SelectionTable()
{
    if (m_procedure) {
        // Nobody is left to hear its end, and the dialog could not be closed any more.
        delete m_busyDialog;
        m_procedure->disconnect(this);
        delete m_procedure;
    }
}

void SelectionTable::setProxy(const QString &host, int port)
{
    m_access.proxyHost = host;
    m_access.proxyPort = port;
}

QHash<QUrl, Qt::CheckState> SelectionTable::userChoices() const
{
    QHash<QUrl, Qt::CheckState> choices;
    for (int row = 0; row < m_rows.size(); ++row) {
        const Qt::CheckState state = item(row, ChoiceColumn)->checkState();
        if (state != m_rows.at(row).proposed) {
            choices.insert(m_entries.at(row).archiveUrl(), state);
        }
    }
    return choices;
}

void SelectionTable::restoreUserChoices(const QHash<QUrl, Qt::CheckState> &choices)
{
    for (int row = 0; row < m_rows.size(); ++row) {
        const auto choice = choices.constFind(m_entries.at(row).archiveUrl());
        if (choice == choices.constEnd()) {
            continue;
        }
        if (m_type == CheckBoxes) {
            item(row, ChoiceColumn)->setCheckState(*choice);
        } else if (*choice == Qt::Checked) {
            radioClicked(row, ChoiceColumn);
        }
    }
}

QSize SelectionTable::sizeHint() const
{
    const auto scaled = [this](int pixels) {
        return qMax(pixels, pixels * fontMetrics().lineSpacing() / referenceLine);
    };
    const int rows = verticalHeader()->length();
    return {QTableWidget::sizeHint().width(),
            qBound(scaled(smallestHeight), 4 + rows, scaled(largestHeight))};
}

void SelectionTable::showDetails()
{
    int row = -1;
    const QList<QTableWidgetSelectionRange> ranges = selectedRanges();
    if (!ranges.isEmpty()) {
        row = ranges.first().topRow();
    } else {
        for (int i = 0; i < m_rows.size() && row < 0; ++i) {
            if (item(i, ChoiceColumn)->checkState() == Qt::Checked) {
                row = i;
            }
        }
    }
    if (row < 0 || !m_entries.at(row).descriptor()) {
        return;
    }
    // On the window: the table may be replaced while the user still reads.
    const RVData &entry = m_entries.at(row);
    auto *dialog = new ItemDetailsDialog(entry.descriptor(), window());
    if (entry.trust && entry.archive()->urlIsHandled() && !entry.archive()->useExtract()) {
        dialog->explainImageCheck();
    }
    // Where the user goes on when the dialog is closed.
    setFocus();
    dialog->show();
}

void SelectionTable::install()
{
    if (m_procedure) {
        return;
    }
    QList<RVData> batch;
    QStringList installed;
    for (int row = 0; row < m_rows.size(); ++row) {
        if (m_entries.at(row).descriptor()
            && item(row, ChoiceColumn)->checkState() == Qt::Checked) {
            batch.append(m_entries.at(row));
            installed.append(m_rows.at(row).current == VersionKnown
                                 ? item(row, InstalledColumn)->text()
                                 : QString());
        }
    }
    if (batch.isEmpty()) {
        return;
    }
    RVBatch chosen = RVBatch::of(batch, nullptr);
    for (int i = 0; i < chosen.items.size(); ++i) {
        chosen.items[i].installed = installed.at(i);
    }
    m_procedure =
        new RVInstallProc(batch, m_access.login.user, m_access.login.password, this, m_paths);
    m_procedure->access = m_access;
    m_procedure->imageQuestion = &m_imageQuestion;
    connect(m_procedure, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            &SelectionTable::incInstallFinished);
    connect(m_procedure, &RVInstallProc::networkError, this, &SelectionTable::relayNetworkError);
    connect(m_procedure, &RVInstallProc::authenticationRequired, this,
            &SelectionTable::relayAuthenticationRequired);
    connect(m_procedure, &RVInstallProc::proxyAuthenticationRequired, this,
            &SelectionTable::relayProxyAuthenticationRequired);
    connect(m_procedure, &RVInstallProc::sslErrors, this, &SelectionTable::relaySslErrors);

    m_busyDialog = new BusyDialog(tr("Retrieving updates..."), tr("Cancel"), 0, 100, window());
    BusyDialog *dialog = m_busyDialog;
    m_isRetrieving = true;
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setAutoClose(false);
    dialog->setAutoReset(false);
    dialog->follow(m_procedure);
    connect(this, &SelectionTable::installError, dialog, &BusyDialog::showDetails);
    connect(this, &SelectionTable::installError, dialog, &BusyDialog::logContents);
    connect(this, &SelectionTable::installFinished, dialog, &BusyDialog::finished);
    connect(m_procedure, &RVInstallProc::extractFinished, this, [this] {
        m_isRetrieving = false;
    });
    // After the dialog's: it has said what happened when relayProcessError() ends the installation.
    connect(m_procedure, &QProcess::errorOccurred, this, &SelectionTable::relayProcessError);
    dialog->show();
    auto *gate = new RVInstallGate(chosen, m_paths, dialog, m_procedure);
    gate->patience = m_patience;
    connect(gate, &RVInstallGate::passed, m_procedure, [this, gate] {
        retranslateDialog();
        m_procedure->heldLocks = gate->heldLocks();
        m_procedure->start();
    });
    gate->start();
}

void SelectionTable::setAuthenticationCredentials(const QString &user, const QString &password)
{
    m_access.login = {user, password};
}

void SelectionTable::selectAll()
{
    if (m_type == CheckBoxes) {
        for (int row = 0; row < rowCount(); ++row) {
            item(row, ChoiceColumn)->setCheckState(Qt::Checked);
        }
    }
}

void SelectionTable::selectNone()
{
    if (m_type == CheckBoxes) {
        for (int row = 0; row < rowCount(); ++row) {
            item(row, ChoiceColumn)->setCheckState(Qt::Unchecked);
        }
    }
}

void SelectionTable::radioClicked(int row, int)
{
    for (int i = 0; i < rowCount(); ++i) {
        item(i, ChoiceColumn)->setCheckState(i == row ? Qt::Checked : Qt::Unchecked);
    }
}

void SelectionTable::incInstallFinished(int exitCode, QProcess::ExitStatus exitStatus)
{
    // A cancel reports an end too, but leaves a running installer alone: that one's own end counts.
    if (m_procedure && m_procedure->state() != QProcess::NotRunning) {
        return;
    }
    RVResult result;
    result.exitCode = exitCode;
    result.exitStatus = exitStatus;
    endInstallation(m_procedure ? m_procedure->result() : result);
}

void SelectionTable::relayNetworkError(const QNetworkReply *reply)
{
    Q_EMIT networkError(reply);
}

void SelectionTable::relayProcessError(QProcess::ProcessError error)
{
    // Every other error is followed by finished().
    if (error == QProcess::FailedToStart) {
        endInstallation(m_procedure ? m_procedure->result() : RVResult());
    }
}

void SelectionTable::relayAuthenticationRequired(QNetworkReply *reply, QAuthenticator *auth)
{
    if (!m_access.answer(reply, auth)) {
        Q_EMIT authenticationRequired(reply, auth);
    }
}

void SelectionTable::relayProxyAuthenticationRequired(const QNetworkProxy &proxy,
                                                      QAuthenticator *auth)
{
    if (!m_access.answer(proxy, auth)) {
        Q_EMIT proxyAuthenticationRequired(proxy, auth);
    }
}

void SelectionTable::relaySslErrors(QNetworkReply *reply, const QList<QSslError> &errors)
{
    Q_EMIT sslErrors(reply, errors);
}

void SelectionTable::retranslateDialog()
{
    // The dialog sees to its own texts; these two it was given.
    if (m_busyDialog && m_isRetrieving) {
        m_busyDialog->setLabelText(tr("Retrieving updates..."));
        if (m_procedure) {
            m_busyDialog->setCancelButtonText(tr("Cancel"));
        }
    }
}

void SelectionTable::retranslateUi()
{
    retranslateDialog();
    setAccessibleName(tr("Updates"));
    setHorizontalHeaderLabels(
        {QString(), tr("Update", "Short column header -- the noun, not the verb, e.g. 'Title'"),
         tr("Installed\nVersion",
            "Short column header --Version currently installed on the system"),
         tr("Update\nVersion",
            "Short column header -- the version available from the repository")});
    horizontalHeaderItem(ChoiceColumn)
        ->setData(Qt::AccessibleTextRole,
                  tr("Selection", "accessible text of the column of check boxes"));
    const QString unknown = tr("unknown", "small word for 'cannot determine version installed'");
    const QString notConfigured =
        tr("not configured", "small words for 'its installation was not completed'");
    const QString none = tr("none", "small word for 'not currently installed'");
    // Slanted Chinese characters are hard to read.
    const bool italic =
        !QCoreApplication::translate("MainWindow", "English").contains(QStringLiteral("中文"));
    for (int row = 0; row < m_rows.size(); ++row) {
        const DescriptorGeneric *descriptor = m_entries.at(row).descriptor().data();
        if (!descriptor) {
            continue;
        }
        const QString name = RVText::shown(DataXML::plainText(descriptor->name({})), longestText);
        const QString title = RVText::shown(DataXML::plainText(descriptor->title({})), longestText);
        item(row, ChoiceColumn)->setData(Qt::AccessibleTextRole, name);
        QTableWidgetItem *update = item(row, UpdateColumn);
        update->setText(
            QStringLiteral("<b>%1</b><br />%2").arg(name.toHtmlEscaped(), title.toHtmlEscaped()));
        update->setData(Qt::AccessibleTextRole, name);
        update->setData(Qt::AccessibleDescriptionRole, title);
        if (m_rows.at(row).current != VersionKnown) {
            QTableWidgetItem *installed = item(row, InstalledColumn);
            const QString &word = m_rows.at(row).current == NotInstalled ? none
                : m_rows.at(row).current == NotConfigured                ? notConfigured
                                                                         : unknown;
            setVersion(installed, word);
            QFont font = installed->font();
            font.setItalic(italic && takesItalics(word));
            installed->setFont(font);
        }
    }
}

void SelectionTable::resizeEvent(QResizeEvent *event)
{
    QTableWidget::resizeEvent(event);
    // The base class may have shown or hidden the scroll bar: the event's own size is stale then.
    const int width = qMax(smallestLabelWidth, viewport()->width() - m_fixedWidth);
    if (width != columnWidth(UpdateColumn)) {
        setColumnWidth(UpdateColumn, width);
        resizeRowsToContents();
        updateGeometry();
    }
}

void SelectionTable::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
        fitToContents();
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        applyFonts();
        fitToContents();
    }
}

void SelectionTable::keyPressEvent(QKeyEvent *event)
{
    const int row = currentRow();
    if ((event->key() != Qt::Key_Space && event->key() != Qt::Key_Select) || row < 0) {
        QTableWidget::keyPressEvent(event);
        return;
    }
    if (m_type == RadioButtons) {
        radioClicked(row, currentColumn());
    } else {
        toggle(row);
    }
}

void SelectionTable::fillRow(int row, const RVProposal &proposal)
{
    auto *choice = new ChoiceItem;
    choice->setFlags(Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
    choice->setCheckState(Qt::Unchecked);
    setItem(row, ChoiceColumn, choice);
    auto *update = new QTableWidgetItem;
    update->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    setItem(row, UpdateColumn, update);
    setItem(row, InstalledColumn, versionItem());
    setItem(row, OfferedColumn, versionItem());

    const DescriptorGeneric *descriptor = m_entries.at(row).descriptor().data();
    if (!descriptor) {
        setRowHidden(row, true);
        return;
    }
    m_rows[row] = {static_cast<CurrentVersionType>(proposal.current), proposal.upToDate,
                   proposal.preselected ? Qt::Checked : Qt::Unchecked};
    choice->setCheckState(m_rows.at(row).proposed);
    if (proposal.current == RVProposal::Known) {
        setVersion(item(row, InstalledColumn), proposal.installed);
    }
    setVersion(item(row, OfferedColumn), DataXML::plainText(descriptor->version().toString()));
}

void SelectionTable::toggle(int row)
{
    QTableWidgetItem *choice = item(row, ChoiceColumn);
    choice->setCheckState(choice->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void SelectionTable::applyFonts()
{
    for (int row = 0; row < m_rows.size(); ++row) {
        const Row &state = m_rows.at(row);
        QTableWidgetItem *installed = item(row, InstalledColumn);
        const bool known = state.current == VersionKnown;
        QFont installedFont =
            versionFont(font(), known ? installed->text() : QString(), state.upToDate);
        installedFont.setItalic(installed->font().italic());
        installed->setFont(installedFont);
        QTableWidgetItem *offered = item(row, OfferedColumn);
        offered->setFont(
            versionFont(font(), offered->text(), !state.upToDate && m_type == CheckBoxes));
    }
}

void SelectionTable::fitToContents()
{
    resizeColumnsToContents();
    m_fixedWidth = 0;
    for (int column = 0; column < ColumnCount; ++column) {
        if (column != UpdateColumn) {
            m_fixedWidth += columnWidth(column);
        }
    }
    // Before the first layout the width means nothing yet; resizeEvent() brings it.
    if (testAttribute(Qt::WA_Resized)) {
        setColumnWidth(UpdateColumn, qMax(smallestLabelWidth, viewport()->width() - m_fixedWidth));
    }
    resizeRowsToContents();
    updateGeometry();
}

// The chosen rows that are installed are no choices of the user any more; the others stay.
void SelectionTable::takeChoicesAsDone(const RVResult &result)
{
    for (const RVItemResult &item : result.items) {
        const int row = m_entries.indexOf(item.entry);
        if (row >= 0 && item.isDone()) {
            m_rows[row].proposed = Qt::Checked;
        }
    }
}

void SelectionTable::endInstallation(const RVResult &result)
{
    result.log();
    takeChoicesAsDone(result);
    const bool isDeclined = m_procedure && m_procedure->isDeclined();
    if (m_busyDialog && isDeclined) {
        // As after a cancel, there is nothing to show.
        m_busyDialog->hide();
        m_busyDialog->deleteLater();
    } else if (m_busyDialog) {
        m_busyDialog->setResult(result);
    }
    if (!result.isWhole() && !isDeclined) {
        Q_EMIT installError();
    }
    RVResult::logEnd();
    RVInstallProc *procedure = m_procedure;
    m_procedure = nullptr;
    if (procedure) {
        procedure->disconnect(this);
        procedure->deleteLater();
    }
    Q_EMIT installFinished();
}
