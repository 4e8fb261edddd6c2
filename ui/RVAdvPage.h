// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"
#include "ui/RVMainPage.h"

#include <plume/WizardPage.h>

#include <QList>
#include <QString>
#include <QUrl>

class AccordionItem;
class QMainWindow;
class RVProxies;
class RepURLFrame;

/// The options page: where the repositories are, and the proxies on the way to them. What it
/// changes it only reports; the main page acts on it. Owned by the host's window.
class RVAdvPage : public WizardPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVAdvPage)

public:
    static const char *const PAGE_TITLE;
    static const char *const PAGE_DESC;
    static const char *const PAGE_HELP;

    explicit RVAdvPage(QMainWindow *window, QWidget *parent = nullptr, Qt::WindowFlags flags = {},
                       const RVPaths &paths = {});
    ~RVAdvPage() override;

    QString title() const override;
    QString description() const override;
    QString helpText() const override;

    /// One row for each, in this order.
    void setRepositories(const QList<RVMainPage::repositoryStatsType *> &repositories);
    /// Reports the stored proxies, once for each type of connection.
    void emitProxySignals();

public Q_SLOTS:
    void changeEvent(QEvent *event) override;
    void retranslateUi();
    /// The help of the item's frame becomes the page's.
    void setHelpURIs(AccordionItem *item);

Q_SIGNALS:
    void repositoryURLChanged(int index, const QUrl &url);
    void proxyChanged(const QString &scheme, const QString &host, int port);
    void helpChanged(const QString &newHelp);

private:
    RepURLFrame *m_locations;
    RVProxies *m_proxies;
    AccordionItem *m_locationsItem;
    AccordionItem *m_proxiesItem;
    /// Whose help is shown; none before one was opened.
    AccordionItem *m_helpItem = nullptr;
};
