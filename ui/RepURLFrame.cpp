// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RepURLFrame.h"

#include "core/RVLogger.h"
#include "core/RVText.h"
#include "descriptor/DataXML.h"
#include "network/XNetworkAccessManager.h"
#include "ui/RVErrorDialog.h"
#include "ui/RVStyle.h"

#include <QDialogButtonBox>
#include <QErrorMessage>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

// What is shown of a text from elsewhere; its layout takes time with its length.
constexpr int longestLabel = 100;
constexpr int longestInMessage = 300;
// In characters; where there is less room its caption goes above it.
constexpr int narrowestField = 26;

class LocationField : public QLineEdit
{
public:
    QSize minimumSizeHint() const override
    {
        return {narrowestField * fontMetrics().averageCharWidth(),
                QLineEdit::minimumSizeHint().height()};
    }
};

/// For the log, which never shows a password: what the user typed, or the URL without it.
QByteArray loggable(const QString &text, const QUrl &url)
{
    return url.password().isEmpty() ? RVLogger::oneLine(text) : RVLogger::oneLine(url);
}

} // namespace

RepURLFrame::RepURLFrame(const QString &title, const QString &description, const QIcon &icon,
                         QWidget *parent, const RVPaths &paths)
    : ControlFrame(parent)
    , m_title(title)
    , m_description(description)
    , m_icon(icon)
    , m_group(new QGroupBox)
    , m_explanation(new QLabel)
    , m_fields(new QFormLayout)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::RestoreDefaults))
    , m_errorMessage(new QErrorMessage(this))
{
    m_explanation->setWordWrap(true);
    m_fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_fields->setRowWrapPolicy(QFormLayout::WrapLongRows);
    auto *groupLayout = new QVBoxLayout(m_group);
    groupLayout->addWidget(m_explanation);
    groupLayout->addLayout(m_fields);

    const RVStyle style(paths);
    QPushButton *ok = m_buttons->button(QDialogButtonBox::Ok);
    QPushButton *defaults = m_buttons->button(QDialogButtonBox::RestoreDefaults);
    ok->setIcon(style.StdIcon(RVStyle::Ok));
    defaults->setIcon(style.StdIcon(RVStyle::RestoreDefaults));
    // Return on a button is for that button, everywhere else for OK.
    ok->setAutoDefault(true);
    defaults->setAutoDefault(true);
    connect(ok, &QPushButton::clicked, this, &RepURLFrame::okButtonPressed);
    connect(defaults, &QPushButton::clicked, this, &RepURLFrame::restoreDefaults);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_group);
    layout->addWidget(m_buttons);
    m_errorMessage->resize(60 * fontMetrics().averageCharWidth(), 12 * fontMetrics().lineSpacing());
    retranslateUi();
}

RepURLFrame::~RepURLFrame() = default;

void RepURLFrame::setHeading(const QString &title, const QString &description)
{
    m_title = title;
    m_description = description;
    Q_EMIT headingChanged();
}

void RepURLFrame::append(const LocaleString &label, const QUrl &current, const QUrl &defaultUrl)
{
    Row row{label, new QLabel, new LocationField, defaultUrl, {}};
    row.field->setObjectName(QStringLiteral("location"));
    row.caption->setTextFormat(Qt::PlainText);
    row.caption->setBuddy(row.field);
    // A location reads from left to right, whatever the language around it.
    row.field->setLayoutDirection(Qt::LeftToRight);
    // With its password, without which it could not be edited.
    row.field->setText(current.toString());
    row.field->setCursorPosition(0);
    // As the field has it: it may not hold everything that a settings file can.
    row.applied = row.field->text().trimmed();
    m_fields->addRow(row.caption, row.field);
    translate(row);
    m_rows.push_back(row);
}

void RepURLFrame::clear()
{
    while (m_fields->rowCount() > 0) {
        m_fields->removeRow(0);
    }
    m_rows.clear();
}

void RepURLFrame::okButtonPressed()
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const QString text = m_rows[i].field->text().trimmed();
        if (text == m_rows[i].applied) {
            continue;
        }
        const QUrl url(text);
        if (accepts(text, url)) {
            const int index = static_cast<int>(i);
            RVLogger().log(5, "New repository URI (%d) '%s'", index,
                           loggable(text, url).constData());
            m_rows[i].applied = text;
            Q_EMIT repositoryURLChanged(index, url);
        }
    }
    Q_EMIT modified();
}

void RepURLFrame::restoreDefaults()
{
    for (const Row &row : m_rows) {
        row.field->setText(row.defaultUrl.toString());
        row.field->setCursorPosition(0);
    }
}

void RepURLFrame::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    ControlFrame::changeEvent(event);
}

void RepURLFrame::retranslateUi()
{
    m_group->setTitle(tr("Repository URIs"));
    m_explanation->setText(tr("Options to change update repository locations"));
    RVErrorDialog::nameParts(m_errorMessage);
    for (const Row &row : m_rows) {
        translate(row);
    }
}

void RepURLFrame::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_buttons->button(QDialogButtonBox::Ok)->click();
        return;
    }
    ControlFrame::keyPressEvent(event);
}

void RepURLFrame::translate(const Row &row) const
{
    const QString label = RVText::shortened(DataXML::plainText(row.label.value({})), longestLabel);
    row.caption->setText(QString(label).replace(QLatin1Char('&'), QLatin1String("&&")));
    row.field->setAccessibleName(label);
}

bool RepURLFrame::accepts(const QString &text, const QUrl &url)
{
    if (text.isEmpty()) {
        return true;
    }
    if (!url.isValid()) {
        showMessage(tr("'%1' is not a valid URI.").arg(RVText::shortened(text, longestInMessage)));
        return false;
    }
    if (!XNetworkAccessManager().schemeIsSupported(url.scheme())) {
        showMessage(tr("'%1' is not a supported URI scheme.")
                        .arg(RVText::shortened(url.scheme(), longestInMessage)));
        return false;
    }
    return true;
}

void RepURLFrame::showMessage(const QString &text)
{
    // The dialog takes markup.
    m_errorMessage->showMessage(
        QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped()));
}
