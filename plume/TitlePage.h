// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <plume/WizardPage.h>

class QLabel;

/// The page that opens a section of the host: a title, a description and a help text.
class PLUME_EXPORT TitlePage : public WizardPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TitlePage)

public:
    TitlePage(const QString &title, const QString &description, const QString &helpText,
              QWidget *parent = nullptr);
    ~TitlePage() override;

    QString title() const override;
    QString description() const override;
    QString helpText() const override;

    void setTitle(const QString &title);
    void setDescription(const QString &description);
    void setHelpText(const QString &helpText);

private:
    QString m_title;
    QString m_description;
    QString m_helpText;
    QLabel *m_titleLabel;
    QLabel *m_descriptionLabel;
    QLabel *m_helpLabel;
};
