// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVSection.h"

#include "ui/RVAdvPage.h"
#include "ui/RVHistoryLink.h"
#include "ui/RVMainPage.h"
#include "ui/RVTranslator.h"

#include <plume/PlumeMainWindow.h>
#include <plume/TitlePage.h>

RVSection::RVSection(PlumeMainWindow *window, QObject *parent, const RVPaths &paths)
    : QObject(parent)
    , m_translator(std::make_unique<RVTranslator>())
{
    // Made before anything is added: a host whose section cannot work gets no half of it.
    auto *mainPage = new RVMainPage(window, window, {}, paths);
    m_titlePage =
        new TitlePage(RVMainPage::tr(RVMainPage::TITLE_PAGE_TITLE),
                      RVMainPage::tr(RVMainPage::PAGE_DESC), RVMainPage::tr(RVMainPage::PAGE_HELP));
    m_historyLink = new RVHistoryLink(m_titlePage, paths);
    window->addTitlePage(m_titlePage);
    window->addNormalPage(mainPage);
    connect(mainPage, &RVMainPage::retranslateDone, this, &RVSection::retranslateUi);
    auto *advPage = new RVAdvPage(window, window, {}, paths);
    window->addNormalPage(advPage);
    advPage->setRepositories(mainPage->repositoryStats());
    connect(advPage, &RVAdvPage::repositoryURLChanged, mainPage, &RVMainPage::repositoryURIChanged);
    connect(advPage, &RVAdvPage::proxyChanged, mainPage, &RVMainPage::proxyChanged);
    // Sections on the network wait for the user, or for a proxy that is told here.
    advPage->emitProxySignals();
}

RVSection::~RVSection() = default;

void RVSection::retranslateUi()
{
    if (m_historyLink) {
        m_historyLink->retranslateUi();
    }
    if (m_titlePage) {
        m_titlePage->setTitle(RVMainPage::tr(RVMainPage::TITLE_PAGE_TITLE));
        m_titlePage->setDescription(RVMainPage::tr(RVMainPage::PAGE_DESC));
        m_titlePage->setHelpText(RVMainPage::tr(RVMainPage::PAGE_HELP));
    }
}
