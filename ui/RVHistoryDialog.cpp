// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVHistoryDialog.h"

#include "core/RVText.h"
#include "ui/RVStyle.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace
{

constexpr int longestCell = 300;

enum Column {
    Time,
    Update,
    From,
    To,
    Result,
    User,
    ColumnCount,
};

} // namespace

RVHistoryDialog::RVHistoryDialog(const RVHistory::Reading &reading, QWidget *parent)
    : QDialog(parent)
    , m_runs(reading.runs)
    , m_damaged(reading.damaged)
{
    for (auto run = m_runs.crbegin(); run != m_runs.crend() && !m_isCut; ++run) {
        for (const RVHistory::Item &item : run->items) {
            m_isCut = m_rows.size() >= mostRows;
            if (m_isCut) {
                break;
            }
            m_rows.append({&*run, &item});
        }
    }

    m_table = new QTableWidget(m_rows.size(), ColumnCount);
    m_table->setObjectName(QStringLiteral("history"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->setMinimumSize(90 * fontMetrics().averageCharWidth(),
                            14 * fontMetrics().lineSpacing());
    for (int row = 0; row < m_rows.size(); ++row) {
        for (int column = 0; column < ColumnCount; ++column) {
            m_table->setItem(row, column, new QTableWidgetItem);
        }
    }

    m_note = new QLabel;
    m_note->setObjectName(QStringLiteral("note"));
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->setVisible(m_isCut || m_damaged > 0);

    auto *buttonBox = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal);
    buttonBox->button(QDialogButtonBox::Close)->setIcon(RVStyle().StdIcon(RVStyle::Close));
    connect(buttonBox, &QDialogButtonBox::rejected, this, &RVHistoryDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_note);
    layout->addWidget(buttonBox);
    retranslateUi();
    m_table->resizeColumnsToContents();
    m_table->setCurrentCell(0, 0);
    m_table->setFocus();
}

RVHistoryDialog::~RVHistoryDialog() = default;

void RVHistoryDialog::done(int result)
{
    QDialog::done(result);
    deleteLater();
}

void RVHistoryDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    QDialog::changeEvent(event);
}

QString RVHistoryDialog::result(const Row &row) const
{
    const QString &state = row.item->state;
    if (row.run->isOpen()) {
        return tr("not ended");
    }
    if (state == QLatin1String("installed")) {
        return tr("installed");
    }
    if (state == QLatin1String("failed")) {
        return tr("failed");
    }
    if (state == QLatin1String("arranged")) {
        return tr("will be installed at the restart");
    }
    if (state == QLatin1String("not-confirmable")) {
        return tr("installed, not confirmed");
    }
    if (state == QLatin1String("left-out")) {
        return tr("left out");
    }
    if (state == QLatin1String("not-tried")) {
        return tr("not tried");
    }
    return state == QLatin1String("cancelled") ? tr("cancelled") : tr("unknown");
}

void RVHistoryDialog::retranslateUi()
{
    setWindowTitle(tr("Installation History"));
    m_table->setAccessibleName(tr("Installed updates"));
    m_table->setHorizontalHeaderLabels(
        {tr("Time"), tr("Update"), tr("From"), tr("To"), tr("Result"), tr("User")});
    const QLocale locale;
    for (int row = 0; row < m_rows.size(); ++row) {
        const Row &entry = m_rows.at(row);
        const auto set = [this, row](Column column, const QString &text) {
            m_table->item(row, column)->setText(RVText::shown(text, longestCell));
        };
        set(Time, locale.toString(entry.run->begun.toLocalTime(), QLocale::ShortFormat));
        set(Update, entry.item->name);
        set(From, entry.item->from);
        set(To, entry.item->to);
        set(Result, result(entry));
        set(User, entry.run->user);
        m_table->item(row, Result)
            ->setToolTip(RVText::shown(entry.item->reason, longestCell).toHtmlEscaped());
    }
    QStringList notes;
    if (m_isCut) {
        notes.append(tr("Only the newest entries are shown."));
    }
    if (m_damaged > 0) {
        notes.append(tr("Some entries are damaged and cannot be shown."));
    }
    m_note->setText(notes.join(QLatin1Char(' ')));
}
