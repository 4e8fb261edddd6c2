// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVAdvPage.h"

#include "core/RVSettings.h"
#include "ui/RVProxies.h"
#include "ui/RVStyle.h"
#include "ui/RepURLFrame.h"

#include <plume/Accordion.h>
#include <plume/AccordionItem.h>

#include <QEvent>
#include <QIcon>
#include <QScrollArea>
#include <QVBoxLayout>

const char *const RVAdvPage::PAGE_TITLE = QT_TRANSLATE_NOOP("RVAdvPage", "Options");
const char *const RVAdvPage::PAGE_DESC =
    QT_TRANSLATE_NOOP("RVAdvPage", "Advanced Options for Ravel");
const char *const RVAdvPage::PAGE_HELP = QT_TRANSLATE_NOOP(
    "RVAdvPage",
    "Advanced options for Ravel such as the ability to modify repository URIs or to configure "
    "internet proxies.");

RVAdvPage::RVAdvPage(QMainWindow *, QWidget *parent, Qt::WindowFlags flags, const RVPaths &paths)
    : WizardPage(parent, flags)
{
    // Makes the drawings below known to Qt.
    const RVStyle style(paths);
    setWindowIcon(QIcon(QStringLiteral(":/images/options.svg")));
    m_locations = new RepURLFrame(QString(), QString(),
                                  QIcon(QStringLiteral(":/images/locations.svg")), nullptr, paths);
    m_proxies = new RVProxies(QLatin1String(RVSettings::organisation),
                              QLatin1String(RVSettings::application), QString(), QString(),
                              QIcon(QStringLiteral(":/images/proxies.svg")), nullptr, paths);
    m_locationsItem = new AccordionItem(m_locations);
    m_proxiesItem = new AccordionItem(m_proxies);
    auto *accordion = new Accordion;
    for (AccordionItem *item : {m_locationsItem, m_proxiesItem}) {
        accordion->addItem(item);
        connect(item, &AccordionItem::selected, this, &RVAdvPage::setHelpURIs);
    }
    connect(m_locations, &RepURLFrame::repositoryURLChanged, this,
            &RVAdvPage::repositoryURLChanged);
    connect(m_locations, &RepURLFrame::modified, this, &WizardPage::modified);
    connect(m_proxies, &RVProxies::proxyChanged, this, &RVAdvPage::proxyChanged);
    connect(m_proxies, &RVProxies::modified, this, &WizardPage::modified);
    // There may be more repositories than a window has room for.
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->addWidget(accordion);
    column->addStretch();
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    // Its fields take the focus, and bring themselves into sight.
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(content);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
    retranslateUi();
}

RVAdvPage::~RVAdvPage() = default;

QString RVAdvPage::title() const
{
    return tr(PAGE_TITLE);
}

QString RVAdvPage::description() const
{
    return tr(PAGE_DESC);
}

QString RVAdvPage::helpText() const
{
    return tr(PAGE_HELP);
}

void RVAdvPage::setRepositories(const QList<RVMainPage::repositoryStatsType *> &repositories)
{
    m_locations->clear();
    for (const RVMainPage::repositoryStatsType *repository : repositories) {
        m_locations->append(repository->label, repository->url, repository->defaultUrl);
    }
}

void RVAdvPage::emitProxySignals()
{
    m_proxies->emitProxySignals();
}

void RVAdvPage::changeEvent(QEvent *event)
{
    WizardPage::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
}

void RVAdvPage::retranslateUi()
{
    m_locations->setHeading(tr("Repository Locations"), tr("Repository Location URIs for Ravel"));
    m_proxies->setHeading(tr("Networking Proxies"), tr("Proxy servers for internet access"));
    if (m_helpItem) {
        setHelpURIs(m_helpItem);
    }
}

void RVAdvPage::setHelpURIs(AccordionItem *item)
{
    if (item == m_locationsItem) {
        Q_EMIT helpChanged(
            tr("This page lets you change the URIs for update content repositories to local or "
               "customer-specific values.  The defaults are CV's standard repositories for Thin "
               "Client update content."));
    } else if (item == m_proxiesItem) {
        Q_EMIT helpChanged(m_proxies->helpText());
    } else {
        return;
    }
    m_helpItem = item;
}
