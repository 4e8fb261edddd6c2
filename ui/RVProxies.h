// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <plume/ControlFrame.h>

#include <QIcon>
#include <QString>

class QCheckBox;
class QDialogButtonBox;
class QGroupBox;
class QLabel;
class QRadioButton;
class RVProxyTable;
struct RVProxySettings;

/// The proxies by type of connection, kept in the settings. OK stores them and reports every one,
/// changed or not, then modified(); it does neither while a port that would be used is none. Owned
/// by its accordion item on the options page.
class RVProxies : public ControlFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVProxies)

public:
    RVProxies(const QString &organisation, const QString &application, const QString &title,
              const QString &description, const QIcon &icon, QWidget *parent = nullptr,
              const RVPaths &paths = {});
    ~RVProxies() override;

    QString title() const override { return m_title; }
    QString helpText() const override { return m_description; }
    QIcon icon() const override { return m_icon; }
    /// For a change of language.
    void setHeading(const QString &title, const QString &description);

    /// Of RVProxySettings.
    int currentStyle() const;
    /// What is on the page, once for each type of connection: an empty host and -1 without proxies,
    /// the port -1 for a text that is none.
    void emitProxySignals();

public Q_SLOTS:
    void initFromSettings();
    void okButtonPressed();
    void radioToggled(bool on);
    void useSameToggled(bool on);
    void changeEvent(QEvent *event) override;
    void retranslateUi();

Q_SIGNALS:
    void proxyChanged(const QString &scheme, const QString &host, int port);
    void modified();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeRows();
    void save();
    RVProxySettings entered() const;
    void enableRows();
    bool isUsed(int row) const;
    /// The row would be used, and has no port that could be.
    bool isBad(int row) const;
    void showBadPorts();
    void refuse(int row);
    void showWarningIcon();
    void outlineButtons();

    const QString m_organisation;
    const QString m_application;
    QString m_title;
    QString m_description;
    QIcon m_icon;
    QGroupBox *m_group;
    QLabel *m_explanation;
    QRadioButton *m_noProxies;
    QRadioButton *m_manual;
    RVProxyTable *m_table;
    QCheckBox *m_useSame;
    QWidget *m_warning;
    QLabel *m_warningIcon;
    QLabel *m_warningText;
    QDialogButtonBox *m_buttons;
    /// OK was pressed in vain: a port that is missing is shown now, too.
    bool m_refused = false;
};
