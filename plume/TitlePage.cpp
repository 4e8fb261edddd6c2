// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include <plume/TitlePage.h>

#include <QFontInfo>
#include <QLabel>
#include <QVBoxLayout>

namespace
{

QLabel *addLabel(QVBoxLayout *layout, const QString &objectName)
{
    auto *label = new QLabel;
    label->setObjectName(objectName);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(label);
    return label;
}

void scaleFont(QLabel *label, qreal factor)
{
    QFont font = label->font();
    // Also of a font that is set in pixels, which says -1 itself.
    font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    label->setFont(font);
}

} // namespace

TitlePage::TitlePage(const QString &title, const QString &description, const QString &helpText,
                     QWidget *parent)
    : WizardPage(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(12);
    m_titleLabel = addLabel(layout, QStringLiteral("titlePageTitle"));
    m_descriptionLabel = addLabel(layout, QStringLiteral("titlePageDescription"));
    layout->addSpacing(12);
    m_helpLabel = addLabel(layout, QStringLiteral("titlePageHelp"));
    layout->addStretch();

    m_titleLabel->setTextFormat(Qt::PlainText);
    m_descriptionLabel->setTextFormat(Qt::PlainText);
    m_helpLabel->setTextFormat(Qt::RichText);
    scaleFont(m_titleLabel, 2.0);
    scaleFont(m_descriptionLabel, 1.2);

    setTitle(title);
    setDescription(description);
    setHelpText(helpText);
}

TitlePage::~TitlePage() = default;

QString TitlePage::title() const
{
    return m_title;
}

QString TitlePage::description() const
{
    return m_description;
}

QString TitlePage::helpText() const
{
    return m_helpText;
}

void TitlePage::setTitle(const QString &title)
{
    m_title = title;
    m_titleLabel->setText(title);
}

void TitlePage::setDescription(const QString &description)
{
    m_description = description;
    m_descriptionLabel->setText(description);
}

void TitlePage::setHelpText(const QString &helpText)
{
    m_helpText = helpText;
    m_helpLabel->setText(helpText);
}
