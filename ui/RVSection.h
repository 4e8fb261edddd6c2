// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QObject>
#include <QPointer>

#include <memory>

class PlumeMainWindow;
class RVHistoryLink;
class RVTranslator;
class TitlePage;

/// The library's entry: constructing it adds the library's pages to the host's window.
/// It brings the library's texts in the language of QLocale() with it.
/// The constructor passes RVMainPage::ExceptionType on when the pages cannot work.
class Q_DECL_EXPORT RVSection : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVSection)

public:
    explicit RVSection(PlumeMainWindow *window, QObject *parent = nullptr,
                       const RVPaths &paths = {});
    ~RVSection() override;

public Q_SLOTS:
    void retranslateUi();

private:
    std::unique_ptr<RVTranslator> m_translator;
    QPointer<TitlePage> m_titlePage;
    QPointer<RVHistoryLink> m_historyLink;
};
