// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <plume/ControlFrame.h>
#include <plume/LocaleString.h>

#include <QIcon>
#include <QString>
#include <QUrl>

#include <vector>

class QDialogButtonBox;
class QErrorMessage;
class QFormLayout;
class QGroupBox;
class QLabel;
class QLineEdit;

/// Where the repositories are: a field for each, applied together by OK, which ends with
/// modified(). Owned by its accordion item on the options page.
class RepURLFrame : public ControlFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RepURLFrame)

public:
    RepURLFrame(const QString &title, const QString &description, const QIcon &icon,
                QWidget *parent = nullptr, const RVPaths &paths = {});
    ~RepURLFrame() override;

    QString title() const override { return m_title; }
    QString helpText() const override { return m_description; }
    QIcon icon() const override { return m_icon; }
    /// For a change of language.
    void setHeading(const QString &title, const QString &description);

    /// One more row, for the next repository in the main page's order.
    void append(const LocaleString &label, const QUrl &current, const QUrl &defaultUrl);
    void clear();

public Q_SLOTS:
    /// Reports the rows whose text is not the one that was applied last. One that is no location
    /// stays as it was applied, and a message says why.
    void okButtonPressed();
    /// Fills the fields; OK applies them.
    void restoreDefaults();
    void changeEvent(QEvent *event) override;
    void retranslateUi();

Q_SIGNALS:
    void repositoryURLChanged(int index, const QUrl &url);
    void modified();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Row {
        LocaleString label;
        QLabel *caption;
        QLineEdit *field;
        QUrl defaultUrl;
        QString applied;
    };

    void translate(const Row &row) const;
    bool accepts(const QString &text, const QUrl &url);
    void showMessage(const QString &text);

    QString m_title;
    QString m_description;
    QIcon m_icon;
    std::vector<Row> m_rows;
    QGroupBox *m_group;
    QLabel *m_explanation;
    QFormLayout *m_fields;
    QDialogButtonBox *m_buttons;
    QErrorMessage *m_errorMessage;
};
