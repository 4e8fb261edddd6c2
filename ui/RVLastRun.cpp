// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVLastRun.h"

#include "core/RVText.h"
#include "ui/BusyDialog.h"
#include "ui/RVDetailsBox.h"
#include "ui/RVStyle.h"

#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace
{

constexpr int lookMs = 1000;
constexpr qint64 shownBytes = 64 * 1024;
constexpr int shownLines = 12;

} // namespace

RVLastRun::RVLastRun(const RVPaths &paths, QWidget *parent)
    : QWidget(parent)
    , m_paths(paths)
{
    setObjectName(QStringLiteral("lastRun"));
    m_label = new QLabel;
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_close = new QPushButton;
    m_close->setIcon(RVStyle(paths).StdIcon(RVStyle::Close));
    connect(m_close, &QPushButton::clicked, this, &QWidget::hide);
    m_detailsBox = new RVDetailsBox;
    connect(m_detailsBox, &QGroupBox::clicked, this, &RVLastRun::showOutput);
    m_output = new QPlainTextEdit;
    m_output->setReadOnly(true);
    m_output->setTabChangesFocus(true);
    m_output->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_output->setFixedHeight(shownLines * fontMetrics().lineSpacing());

    auto *head = new QHBoxLayout;
    head->addWidget(m_label, 1);
    head->addWidget(m_close, 0, Qt::AlignTop);
    auto *details = new QVBoxLayout(m_detailsBox);
    details->setContentsMargins({});
    details->addWidget(m_output);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(m_detailsBox);

    m_timer.setInterval(lookMs);
    connect(&m_timer, &QTimer::timeout, this, &RVLastRun::look);
    retranslateUi();
    showOutput(false);
    look();
}

RVLastRun::~RVLastRun() = default;

void RVLastRun::look()
{
    const bool wasRunning = m_run && m_run->state == RVKeptRun::State::Running;
    const std::optional<RVKeptRun> run = RVKeptRun::last(m_paths);
    if (!run && wasRunning) {
        // Its own program has heard of its end.
        m_run.reset();
        m_timer.stop();
        hide();
        Q_EMIT ended();
        return;
    }
    m_run = run;
    setHidden(!m_run);
    if (!m_run) {
        return;
    }
    retranslateUi();
    if (m_detailsBox->isChecked()) {
        showOutput(true);
    }
    if (m_run->state == RVKeptRun::State::Running) {
        m_timer.start();
        return;
    }
    m_timer.stop();
    if (isVisible()) {
        m_run->forget(m_paths);
    }
    if (wasRunning) {
        Q_EMIT ended();
    }
}

void RVLastRun::showOutput(bool isShown)
{
    m_detailsBox->setChecked(isShown);
    m_output->setVisible(isShown);
    if (isShown && m_run) {
        m_output->setPlainText(
            RVText::safeLines(QString::fromUtf8(m_run->output(shownBytes))
                                  .replace(QLatin1Char('\r'), QLatin1Char('\n'))));
        m_output->verticalScrollBar()->setValue(m_output->verticalScrollBar()->maximum());
    }
}

void RVLastRun::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_run) {
        m_run->forget(m_paths);
    }
}

void RVLastRun::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
}

void RVLastRun::retranslateUi()
{
    if (m_run) {
        m_label->setText(m_run->sentence().translated());
    }
    m_close->setText(tr("Close"));
    m_detailsBox->setTitle(BusyDialog::tr("Show Details"));
    m_detailsBox->setAccessibleDescription(BusyDialog::tr("Shows the installer's output."));
    m_output->setAccessibleName(BusyDialog::tr("Installer output"));
}
