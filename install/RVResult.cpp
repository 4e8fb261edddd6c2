// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "install/RVResult.h"

#include "core/RVLogger.h"

#include <QCoreApplication>

#include <algorithm>

using State = RVItemResult::State;
using Fault = RVItemResult::Fault;

bool RVItemResult::isDone() const
{
    return state == State::Installed || state == State::Arranged || state == State::NotConfirmable;
}

QString RVItemResult::stateWord() const
{
    switch (state) {
    case State::Installed:
        return QStringLiteral("installed");
    case State::Failed:
        return QStringLiteral("failed");
    case State::Arranged:
        return QStringLiteral("arranged");
    case State::NotConfirmable:
        return QStringLiteral("not-confirmable");
    case State::LeftOut:
        return QStringLiteral("left-out");
    case State::NotTried:
        return QStringLiteral("not-tried");
    case State::Cancelled:
        return QStringLiteral("cancelled");
    }
    return {};
}

QString RVItemResult::faultWord() const
{
    switch (fault) {
    case Fault::None:
        return {};
    case Fault::Network:
        return QStringLiteral("network");
    case Fault::Damaged:
        return QStringLiteral("damaged");
    case Fault::Space:
        return QStringLiteral("space");
    case Fault::Untrusted:
        return QStringLiteral("trust");
    case Fault::OtherKind:
        return QStringLiteral("kind");
    }
    return {};
}

int RVResult::count(RVItemResult::State state) const
{
    return static_cast<int>(
        std::count_if(items.cbegin(), items.cend(), [state](const RVItemResult &item) {
            return item.state == state;
        }));
}

bool RVResult::isWhole() const
{
    return exitCode == 0 && exitStatus == QProcess::NormalExit
        && std::all_of(items.cbegin(), items.cend(), [](const RVItemResult &item) {
               return item.isDone();
           });
}

bool RVResult::isCancelled() const
{
    return !items.isEmpty()
        && std::all_of(items.cbegin(), items.cend(),
                       [](const RVItemResult &item) {
                           return item.state == State::Cancelled || item.state == State::LeftOut
                               || item.state == State::NotTried;
                       })
        && count(State::Cancelled) > 0;
}

RVSentence RVResult::summary() const
{
    const int all = items.size();
    const int installed = count(State::Installed);
    const int open = count(State::NotConfirmable);
    if (isCancelled()) {
        return RVSentence(QT_TRANSLATE_NOOP("RVSentence", "Installation cancelled"));
    }
    if (count(State::Arranged) > 0) {
        return RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "The image will be installed at the restart"));
    }
    if (installed + open == 0) {
        return RVSentence(QT_TRANSLATE_NOOP("RVSentence", "Installation failed"));
    }
    if (open > 0 && installed + open == all) {
        return RVSentence(
            QT_TRANSLATE_NOOP("RVSentence", "Installed, but the system cannot confirm it"));
    }
    if (installed < all) {
        return RVSentence::counted(QT_TRANSLATE_N_NOOP("RVSentence", "%1 of %n updates installed"),
                                   all, {QString::number(installed)});
    }
    return all == 1
        ? RVSentence(QT_TRANSLATE_NOOP("RVSentence", "1 update installed"))
        : RVSentence::counted(QT_TRANSLATE_N_NOOP("RVSentence", "%n updates installed"), all);
}

void RVResult::log() const
{
    RVLogger logger;
    if (exitCode != 0) {
        logger.log(3, "Install process returned non-zero status code %d", exitCode);
    }
    if (items.isEmpty()) {
        return;
    }
    logger.log(isWhole() || isCancelled() ? 5 : 3, "%s", qUtf8Printable(summary().english()));
    for (const RVItemResult &item : items) {
        QString line = QStringLiteral("%1 %2: %3").arg(item.name, item.to, item.stateWord());
        if (!item.reason.isEmpty()) {
            line += QStringLiteral(". ") + item.reason.english();
        }
        logger.log(item.isDone() || item.state == State::Cancelled ? 5 : 3, "  %s",
                   RVLogger::oneLine(line).constData());
    }
    if (!reason.isEmpty()) {
        logger.log(3, "%s", RVLogger::oneLine(reason.english()).constData());
    }
}

void RVResult::logOutput(const QString &text)
{
    RVLogger logger;
    logger.log(3, "Failed installation details:");
    logger.log(3, "%s", qUtf8Printable(text));
    logger.log(3, "%s", "");
}

void RVResult::logEnd()
{
    RVLogger().log(5, "INSTALL FINISHED");
}
