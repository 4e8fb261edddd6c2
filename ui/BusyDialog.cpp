// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/BusyDialog.h"

#include "core/RVLogger.h"
#include "core/RVText.h"
#include "core/RVUrl.h"
#include "install/RVInstallProc.h"
#include "ui/RVDetailsBox.h"
#include "ui/RVErrorDialog.h"
#include "ui/RVStyle.h"
#include "ui/RVTrustTexts.h"

#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QEvent>
#include <QFontDatabase>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCodec>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

#include <limits>

namespace
{

constexpr int longestUrl = 300;
constexpr int longestName = 200;
constexpr int narrowest = 500;
constexpr int maximumLines = 20000;
constexpr int maximumCharacters = 2 * 1024 * 1024;
/// Longer lines are broken: the layout of one line takes time in proportion to its square.
constexpr int maximumColumns = 1000;
/// More bytes than the characters that the view holds.
constexpr int maximumBytes = 3 * maximumCharacters;
/// Output is put into the view in batches, so many milliseconds apart, or where that takes long so
/// many times as long: the window stays with its user.
constexpr int batchInterval = 50;
constexpr int batchShare = 4;

int toKiB(qint64 bytes)
{
    const qint64 positive = qMax<qint64>(bytes, 0);
    return static_cast<int>(qMin<qint64>(positive / 1024 + (positive % 1024 + 512) / 1024,
                                         std::numeric_limits<int>::max()));
}

bool isControl(QChar c)
{
    const ushort code = c.unicode();
    // Qt's own marks for frames and for embedded objects are no characters either.
    return (c.category() == QChar::Other_Control && c != QLatin1Char('\t'))
        || (code >= 0xfdd0 && code <= 0xfdef) || code >= 0xfffe
        || c == QChar::ObjectReplacementCharacter;
}

// Dark red, as it always was, where the background lets it be read.
QColor errorColour(const QPalette &palette)
{
    return RVStyle::isDark(palette.color(QPalette::Base)) ? QColor(0xff, 0x80, 0x80)
                                                          : QColor(0x99, 0x00, 0x00);
}

} // namespace

BusyDialog::BusyDialog(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_labelTextIsDefault(true)
    , m_cancelTextIsDefault(true)
{
    setup(tr("In progress..."), tr("Cancel"), 0, 0);
}

BusyDialog::BusyDialog(const QString &labelText, const QString &cancelText, int minimum,
                       int maximum, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    setup(labelText, cancelText, minimum, maximum);
}

BusyDialog::~BusyDialog() = default;

void BusyDialog::setup(const QString &labelText, const QString &cancelText, int minimum,
                       int maximum)
{
    m_label = new QLabel(labelText);
    m_label->setObjectName(QStringLiteral("label"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);

    m_progressBar = new QProgressBar;
    // Qt's own style draws the text of a bar from right to left in the colour of its ground.
    m_progressBar->setLayoutDirection(Qt::LeftToRight);
    m_progressBar->setObjectName(QStringLiteral("progressBar"));
    m_progressBar->setRange(minimum, maximum);
    m_progressBar->setValue(minimum);
    connect(m_progressBar, &QProgressBar::valueChanged, this, &BusyDialog::incValueChanged);

    m_buttonBox = new QDialogButtonBox(QDialogButtonBox::Cancel | QDialogButtonBox::Close);
    m_buttonBox->setObjectName(QStringLiteral("buttonBox"));
    const RVStyle style;
    cancelButton()->setIcon(style.StdIcon(RVStyle::Cancel));
    applyCancelText(cancelText);
    connect(cancelButton(), &QPushButton::clicked, this, &BusyDialog::cancel);
    closeButton()->setIcon(style.StdIcon(RVStyle::Close));
    closeButton()->hide();
    // The dialog does not shrink while there is no button to press.
    m_buttonBox->setMinimumHeight(cancelButton()->sizeHint().height());
    connect(closeButton(), &QPushButton::clicked, this, &BusyDialog::hide);
    connect(closeButton(), &QPushButton::clicked, this, &BusyDialog::deleteLater);

    m_detailsBox = new RVDetailsBox;
    m_detailsBox->setObjectName(QStringLiteral("detailsBox"));
    connect(m_detailsBox, &QGroupBox::clicked, this, &BusyDialog::setDetailsChecked);

    m_document = new QTextDocument(this);
    m_document->setUndoRedoEnabled(false);
    m_document->setDefaultFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_detailsView = new QTextEdit;
    m_detailsView->setObjectName(QStringLiteral("detailsView"));
    m_detailsView->setDocument(m_document);
    m_detailsView->setReadOnly(true);
    m_detailsView->setTabChangesFocus(true);
    m_detailsView->setMinimumHeight(12 * fontMetrics().lineSpacing());
    // The layout works in steps of its own: the end may come after the text that was put there.
    QScrollBar *scrollBar = m_detailsView->verticalScrollBar();
    connect(scrollBar, &QScrollBar::rangeChanged, this, [scrollBar](int, int max) {
        scrollBar->setValue(max);
    });
    auto *detailsLayout = new QVBoxLayout(m_detailsBox);
    detailsLayout->setContentsMargins({});
    detailsLayout->addWidget(m_detailsView);

    m_results = new QListWidget;
    m_results->setObjectName(QStringLiteral("results"));
    m_results->setWordWrap(true);
    m_results->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_results->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_results->setMaximumHeight(8 * fontMetrics().lineSpacing());
    m_results->hide();

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_label);
    layout->addWidget(m_progressBar);
    layout->addWidget(m_results);
    layout->addWidget(m_buttonBox);
    layout->addWidget(m_detailsBox, 1);
    setMinimumWidth(qMax(narrowest, 60 * fontMetrics().averageCharWidth()));

    m_flushTimer.setSingleShot(true);
    m_flushTimer.setInterval(batchInterval);
    connect(&m_flushTimer, &QTimer::timeout, this, &BusyDialog::flushOutput);
    m_standardError.isError = true;
    resetChannels();
    setDetailsChecked(false);
    updateNames();
    cancelButton()->setFocus();
}

QPushButton *BusyDialog::cancelButton() const
{
    return m_buttonBox->button(QDialogButtonBox::Cancel);
}

QPushButton *BusyDialog::closeButton() const
{
    return m_buttonBox->button(QDialogButtonBox::Close);
}

void BusyDialog::updateNames()
{
    m_detailsBox->setTitle(tr("Show Details"));
    m_progressBar->setAccessibleName(m_label->text());
    m_detailsBox->setAccessibleDescription(tr("Shows the installer's output."));
    m_detailsView->setAccessibleName(tr("Installer output"));
    m_results->setAccessibleName(tr("Results"));
}

void BusyDialog::setBarText(BarText text)
{
    m_barText = text;
    switch (text) {
    case NoBarText:
        break;
    case AmountText:
        m_progressBar->setFormat(tr("%v of %m KiB", "e.g. 500 of 1000 KiB"));
        break;
    case DoneText:
        m_progressBar->setFormat(tr("%p%:  Done", "%p is percentage done."));
        break;
    }
}

void BusyDialog::setLabelText(const QString &text)
{
    m_labelSaysInstalling = false;
    m_labelTextIsDefault = false;
    m_label->setText(text);
    updateNames();
}

void BusyDialog::setCancelButtonText(const QString &text)
{
    m_cancelTextIsDefault = false;
    applyCancelText(text);
}

void BusyDialog::applyCancelText(const QString &text)
{
    m_cancelText = text;
    cancelButton()->setText(text);
    cancelButton()->setVisible(!text.isEmpty());
}

void BusyDialog::disableCancel()
{
    setCancelButtonText(QString());
}

void BusyDialog::setMaximum(int max)
{
    m_progressBar->setMaximum(max);
}

void BusyDialog::setMinimum(int min)
{
    m_progressBar->setMinimum(min);
}

void BusyDialog::setRange(int min, int max)
{
    m_progressBar->setRange(min, max);
}

void BusyDialog::setValue(int val)
{
    m_progressBar->setValue(val);
}

void BusyDialog::setAutoReset(bool on)
{
    if (on == m_autoReset) {
        return;
    }
    m_autoReset = on;
    if (on) {
        connect(m_progressBar, &QProgressBar::valueChanged, this, &BusyDialog::incValueChanged);
    } else {
        disconnect(m_progressBar, &QProgressBar::valueChanged, this, &BusyDialog::incValueChanged);
    }
}

void BusyDialog::setAutoClose(bool on)
{
    m_autoClose = on;
}

void BusyDialog::reset()
{
    m_progressBar->setValue(m_progressBar->minimum());
    if (m_autoClose) {
        hide();
    }
}

void BusyDialog::incValueChanged(int value)
{
    const int maximum = m_progressBar->maximum();
    if (value >= maximum && m_progressBar->minimum() < maximum) {
        reset();
    }
}

void BusyDialog::cancel()
{
    if (m_wasCanceled) {
        return;
    }
    m_wasCanceled = true;
    hide();
    Q_EMIT canceled();
}

void BusyDialog::reject()
{
    if (m_isFinished) {
        hide();
        deleteLater();
    } else if (!cancelButton()->isHidden()) {
        cancel();
    }
}

void BusyDialog::progress(qint64 bytesReceived, qint64 bytesTotal)
{
    const int total = toKiB(bytesTotal);
    setBarText(AmountText);
    m_progressBar->setRange(0, total);
    m_progressBar->setValue(qMin(toKiB(bytesReceived), total));
}

void BusyDialog::enterInstallPhase()
{
    setLabelText(tr("Installing updates..."));
    m_labelSaysInstalling = true;
    m_progressBar->setValue(0);
    m_progressBar->setRange(0, 0);
}

void BusyDialog::finished()
{
    flushOutput();
    setAutoReset(false);
    m_isFinished = true;
    m_progressBar->setRange(0, 100);
    m_progressBar->setValue(100);
    setBarText(DoneText);
    showResult();
    cancelButton()->hide();
    closeButton()->show();
    closeButton()->setDefault(true);
    closeButton()->setFocus();
}

void BusyDialog::setResult(const RVResult &result)
{
    m_result = result;
}

void BusyDialog::showResult()
{
    if (m_result.items.isEmpty()) {
        return;
    }
    setLabelText(m_result.summary().translated());
    // A full bar says that all is well.
    m_progressBar->setVisible(m_result.isWhole());
    m_results->clear();
    for (const RVItemResult &item : qAsConst(m_result.items)) {
        QString text = tr("%1 %2: %3", "An update, its version, and how it ended.")
                           .arg(RVText::shown(item.name, longestName),
                                RVText::shown(item.to, longestName), stateText(item.state));
        const QString reason = item.fault == RVItemResult::Fault::Network
            ? RVErrorDialog::messageFor(
                item.networkError, RVText::shown(RVUrl::shown(item.entry.archiveUrl()), longestUrl))
            : item.reason.translated();
        if (!reason.isEmpty()) {
            text += QLatin1Char('\n') + reason;
        }
        m_results->addItem(text);
    }
    m_results->show();
}

QString BusyDialog::stateText(RVItemResult::State state)
{
    switch (state) {
    case RVItemResult::State::Installed:
        return tr("installed");
    case RVItemResult::State::Failed:
        return tr("failed");
    case RVItemResult::State::Arranged:
        return tr("will be installed at the restart");
    case RVItemResult::State::NotConfirmable:
        return tr("installed, but the system cannot confirm it");
    case RVItemResult::State::LeftOut:
        return tr("left out");
    case RVItemResult::State::NotTried:
        return tr("not tried");
    case RVItemResult::State::Cancelled:
        return tr("cancelled");
    }
    return {};
}

void BusyDialog::setDetailsChecked(bool checked)
{
    m_detailsBox->setChecked(checked);
    m_detailsView->setVisible(checked);
    m_detailsBox->layout()->activate();
    layout()->activate();
    if (isVisible()) {
        // Room for the details when they open; none that stays empty when they close.
        resize(width(), checked ? qMax(height(), sizeHint().height()) : sizeHint().height());
    }
    if (checked) {
        scrollToEnd();
    }
}

void BusyDialog::showDetails()
{
    setDetailsChecked(true);
}

void BusyDialog::hideDetails()
{
    setDetailsChecked(false);
}

void BusyDialog::follow(RVInstallProc *procedure)
{
    processOutputToDetails(procedure);
    connect(procedure, &RVInstallProc::downloadProgress, this, &BusyDialog::progress);
    connect(procedure, &RVInstallProc::extractFinished, this, &BusyDialog::disableCancel);
    connect(procedure, &RVInstallProc::installStarted, this, &BusyDialog::enterInstallPhase);
    connect(procedure, &QProcess::errorOccurred, this, &BusyDialog::processError);
    connect(procedure, &RVInstallProc::trustFailed, this, [this, procedure] {
        const RVTrustFault &fault = procedure->trustFault();
        showFault(RVTrustTexts::sentence(fault) + QLatin1Char('\n') + RVText::safe(fault.text));
    });
    connect(procedure, &RVInstallProc::archiveRefused, this,
            [this](const QUrl &archive, const RVSentence &reason) {
                showFault(RVText::shown(RVUrl::shown(archive), longestUrl) + QLatin1Char('\n')
                          + reason.translated());
            });
    connect(this, &BusyDialog::canceled, procedure, &RVInstallProc::cancel);
    connect(this, &BusyDialog::canceled, this, &QWidget::hide);
    connect(this, &BusyDialog::canceled, this, &QObject::deleteLater);
}

void BusyDialog::processOutputToDetails(QProcess *proc)
{
    if (m_process) {
        disconnect(m_process, nullptr, this, nullptr);
    }
    flushOutput();
    m_process = proc;
    resetChannels();
    if (proc) {
        connect(proc, &QProcess::readyReadStandardError, this, &BusyDialog::appendProcessStderr);
        connect(proc, &QProcess::readyReadStandardOutput, this, &BusyDialog::appendProcessStdout);
        connect(proc, &QObject::destroyed, this, &BusyDialog::processDestroyed);
    }
}

void BusyDialog::processDestroyed(QObject *obj)
{
    if (obj == m_process) {
        disconnect(obj, nullptr, this, nullptr);
        m_process = nullptr;
    }
}

void BusyDialog::resetChannels()
{
    QTextCodec *utf8 = QTextCodec::codecForName("UTF-8");
    for (Channel *channel : {&m_standardOutput, &m_standardError}) {
        channel->decoder.reset(utf8->makeDecoder(QTextCodec::IgnoreHeader));
        channel->column = 0;
        channel->afterReturn = false;
    }
}

void BusyDialog::appendProcessStdout()
{
    if (m_process && m_process->isReadable()) {
        append(m_standardOutput, m_process->readAllStandardOutput());
    }
}

void BusyDialog::appendProcessStderr()
{
    if (m_process && m_process->isReadable()) {
        append(m_standardError, m_process->readAllStandardError());
    }
}

void BusyDialog::append(Channel &channel, const QByteArray &bytes)
{
    if (bytes.isEmpty()) {
        return;
    }
    if (!m_pending.isEmpty() && m_pending.constLast().channel == &channel) {
        m_pending.last().bytes.append(bytes);
    } else {
        m_pending.append({bytes, &channel});
    }
    m_pendingSize += bytes.size();
    // Seldom, for it moves what stays.
    if (m_pendingSize > 2 * maximumBytes) {
        dropPending();
    }
    if (!m_flushTimer.isActive()) {
        m_flushTimer.start();
    }
}

QString BusyDialog::decoded(Channel &channel, const QByteArray &bytes)
{
    const QString decoded = channel.decoder->toUnicode(bytes);
    QString text;
    text.reserve(decoded.size());
    for (const QChar c : decoded) {
        const bool isReturn = c == QLatin1Char('\r');
        if (isReturn || c == QLatin1Char('\n') || c == QChar::LineSeparator
            || c == QChar::ParagraphSeparator) {
            // A carriage return with a line feed behind it, in the next piece perhaps, is one line
            // end.
            if (isReturn || !channel.afterReturn) {
                text.append(QLatin1Char('\n'));
            }
            channel.column = 0;
        } else if (!isControl(c)) {
            if (channel.column >= maximumColumns && !c.isLowSurrogate()) {
                text.append(QLatin1Char('\n'));
                channel.column = 0;
            }
            text.append(c);
            ++channel.column;
        }
        channel.afterReturn = isReturn;
    }
    return text;
}

void BusyDialog::dropPending()
{
    int excess = m_pendingSize - maximumBytes;
    while (excess > 0) {
        QByteArray &run = m_pending.first().bytes;
        const int dropped = qMin(excess, run.size());
        excess -= dropped;
        m_pendingSize -= dropped;
        if (dropped == run.size()) {
            m_pending.removeFirst();
        } else {
            run.remove(0, dropped);
        }
        m_isPendingCut = true;
    }
    if (m_isPendingCut) {
        resetChannels();
    }
}

bool BusyDialog::keepLastLines(QVector<Text> *texts)
{
    int lines = 0;
    for (int i = texts->size() - 1; i >= 0; --i) {
        const QString &text = texts->at(i).text;
        int at = text.size();
        while (at > 0 && (at = text.lastIndexOf(QLatin1Char('\n'), at - 1)) >= 0) {
            if (++lines > maximumLines) {
                (*texts)[i].text = text.mid(at + 1);
                texts->erase(texts->begin(), texts->begin() + i);
                return true;
            }
        }
    }
    return false;
}

void BusyDialog::flushOutput()
{
    m_flushTimer.stop();
    if (m_pending.isEmpty()) {
        return;
    }
    QElapsedTimer timer;
    timer.start();
    dropPending();
    QVector<Text> texts;
    for (const Output &output : qAsConst(m_pending)) {
        texts.append({decoded(*output.channel, output.bytes), output.channel->isError});
    }
    m_pending.clear();
    m_pendingSize = 0;
    // What scrolls out at once is never put there: the document takes its time for each line.
    const bool isCut = keepLastLines(&texts) || m_isPendingCut;
    m_isPendingCut = false;
    if (isCut) {
        m_document->clear();
    }
    QTextCursor edit(m_document);
    edit.beginEditBlock();
    for (const Text &text : qAsConst(texts)) {
        appendText(text.text, text.isError);
    }
    trimDetails(isCut);
    edit.endEditBlock();
    scrollToEnd();
    m_flushTimer.setInterval(qMax(batchInterval, static_cast<int>(timer.elapsed()) * batchShare));
}

void BusyDialog::appendText(const QString &text, bool isError)
{
    QTextCharFormat format;
    if (isError) {
        format.setForeground(errorColour(m_detailsView->palette()));
    }
    QTextCursor cursor(m_document);
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text, format);
}

void BusyDialog::trimDetails(bool isCut)
{
    const int excessLines = m_document->blockCount() - maximumLines;
    const int excessCharacters = m_document->characterCount() - maximumCharacters;
    if (!isCut && excessLines <= 0 && excessCharacters <= 0) {
        return;
    }
    // Whole lines; the first one is an earlier note.
    const QTextBlock byLines = m_document->findBlockByNumber(qMax(excessLines, 0) + 1);
    const QTextBlock byCharacters = m_document->findBlock(qMax(excessCharacters, 0)).next();
    QTextCursor cursor(m_document);
    cursor.setPosition(qMax(byLines.position(), byCharacters.position()), QTextCursor::KeepAnchor);
    cursor.insertText(tr("(The beginning of the output is left out.)") + QLatin1Char('\n'),
                      QTextCharFormat());
}

void BusyDialog::scrollToEnd()
{
    if (!m_detailsView->isHidden()) {
        m_detailsView->moveCursor(QTextCursor::End);
        m_detailsView->ensureCursorVisible();
    }
}

void BusyDialog::processError(QProcess::ProcessError err)
{
    setDetailsChecked(true);
    finished();

    QString message;
    switch (err) {
    case QProcess::FailedToStart:
        message = tr("The process failed to start.");
        break;
    case QProcess::Crashed:
        message = tr("The process crashed.");
        break;
    case QProcess::Timedout:
        message = tr("The process timed out.");
        break;
    case QProcess::ReadError:
        message = tr("Error reading from the process.");
        break;
    case QProcess::WriteError:
        message = tr("Error writing to the process.");
        break;
    default:
        message = tr("Unknown process error.");
    }
    showFault(message);
    RVLogger().log(4, "%s", qUtf8Printable(message));
}

void BusyDialog::showFault(const QString &text)
{
    const bool insideLine = m_document->lastBlock().length() > 1;
    appendText(insideLine ? QLatin1Char('\n') + text : text, true);
    scrollToEnd();
}

void BusyDialog::showOutput(const QByteArray &bytes)
{
    append(m_standardOutput, bytes);
}

void BusyDialog::logContents()
{
    flushOutput();
    RVResult::logOutput(m_document->toPlainText());
}

bool BusyDialog::event(QEvent *event)
{
    const bool result = QDialog::event(event);
    if (event->type() == QEvent::LanguageChange) {
        // The button box, which hears of it after changeEvent(), writes its own texts.
        cancelButton()->setText(m_cancelText);
    }
    return result;
}

void BusyDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    QDialog::changeEvent(event);
}

void BusyDialog::retranslateUi()
{
    if (m_labelTextIsDefault) {
        m_label->setText(tr("In progress..."));
    } else if (m_labelSaysInstalling) {
        m_label->setText(tr("Installing updates..."));
    }
    setBarText(m_barText);
    if (m_isFinished) {
        showResult();
    }
    if (m_cancelTextIsDefault) {
        m_cancelText = tr("Cancel");
    }
    cancelButton()->setText(m_cancelText);
    updateNames();
}
