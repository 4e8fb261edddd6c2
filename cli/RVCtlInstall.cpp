// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "archive/ImageQuestion.h"
#include "cli/RVCtlAccess.h"
#include "cli/RVCtlBatch.h"
#include "cli/RVCtlCommand.h"
#include "cli/RVCtlDeadline.h"
#include "cli/RVCtlInstallRun.h"
#include "cli/RVCtlLastRun.h"
#include "cli/RVCtlMessages.h"
#include "cli/RVCtlObstacle.h"
#include "cli/RVCtlOffers.h"
#include "cli/RVCtlQuestion.h"
#include "cli/RVCtlTrust.h"
#include "core/RVLogger.h"
#include "install/RVFolderMark.h"
#include "install/RVHistory.h"
#include "install/RVPackageDatabase.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QJsonArray>

#include <algorithm>
#include <csignal>

namespace
{

const QString yesOption = QStringLiteral("yes");

/// A full image wipes the device: it needs a yes, or --yes.
class Question : public ImageQuestion
{
public:
    explicit Question(const RVCtlCall &call)
        : m_call(call)
    {
    }

    bool confirmImageInstall() override
    {
        if (!certificateWarning.isEmpty()) {
            m_call.messages.warning(certificateWarning.english());
        }
        // From a yes on nothing ends the run any more.
        return (m_call.parser.isSet(yesOption) || ask()) && m_call.deadline.hold();
    }

private:
    bool ask() const
    {
        m_call.messages.error(
            QStringLiteral("%1 %2 replaces everything on the device and restarts it.")
                .arg(name, version));
        if (isChecked) {
            m_call.messages.error(
                QStringLiteral("It was read and compared with its sum, which reveals damage. "
                               "After the restart the device fetches it again and checks nothing: "
                               "a hostile server can then deliver another one."));
        }
        return RVCtlQuestion::isYes(QStringLiteral("Install it?"), &m_call.deadline);
    }

    const RVCtlCall &m_call;
};

bool hasPackages(const RVCtlOffers &section)
{
    const QVector<RVCtlOffers::Entry> &entries = section.entries();
    return std::any_of(entries.cbegin(), entries.cend(), [](const RVCtlOffers::Entry &entry) {
        return entry.archive.path().endsWith(QLatin1String(".deb"), Qt::CaseInsensitive);
    });
}

} // namespace

QList<QCommandLineOption> RVCtlCommands::installOptions()
{
    QList<QCommandLineOption> options{
        {yesOption, QStringLiteral("Install an image without asking.")},
        RVCtlOffers::reinstallOption(),
        RVCtlObstacle::timeoutOption(),
    };
    return options + RVCtlAccess::options();
}

RVCtlResult RVCtlCommands::install(const RVCtlCall &call)
{
    int lockTimeout = 0;
    QString error;
    if (!RVCtlObstacle::readTimeout(call, &lockTimeout, &error)) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    // A reader that goes away must not take the installer with it.
    std::signal(SIGPIPE, SIG_IGN);
    RVCtlLastRun::tell(call);
    RVFolderMark::removeLeft(QDir::tempPath());

    RVCtlResult result;
    call.world.setRememberingTrust(true);
    RVCtlAccess access(call.messages);
    QList<RVCtlOffers> sections;
    if (!RVCtlOffers::read(call, call.arguments.mid(0, 1), &access, &sections, &result)) {
        return result;
    }
    RVHistory(call.world.paths()).closeOpen(RVHistory::judgeBy(&call.world.system()));
    const RVCtlOffers &section = sections.constFirst();
    RVCtlOffers::judge(sections, &result);
    if (section.failure().isSet()) {
        result.json.insert(QStringLiteral("trust"),
                           RVCtlTrust::toJson(*section.section().repository));
        return result;
    }
    QVector<RVCtlOffers::Entry> chosen;
    if (!section.choose(call.arguments.mid(1), RVCtlOffers::runningImage(call.parser), &chosen,
                        &error)) {
        return RVCtlResult::failed(RVCtlExit::Usage, error);
    }
    const RVCtlBatch batch = RVCtlBatch::of(section, chosen, call.world.system());
    RVPreflight preflight(call.world.paths());
    const auto refused = [&batch](const RVCtlResult &refusal) {
        RVLogger().log(3, "%s", RVLogger::oneLine(refusal.error).constData());
        RVCtlResult result = refusal;
        result.json = batch.toJson();
        result.json.insert(QStringLiteral("installer"), QJsonValue());
        return result;
    };
    if (batch.updates.isEmpty()) {
        // What an earlier run left does not get better by itself.
        const auto interrupted = hasPackages(section) ? preflight.interruption({}) : std::nullopt;
        if (interrupted && !RVPackageDatabase(call.world.paths()).lockHolder().isSet) {
            return refused(RVCtlObstacle::result(*interrupted));
        }
        result.text = QStringLiteral("Nothing is new.\n");
        result.json = batch.toJson();
        result.json.insert(QStringLiteral("installer"), QJsonValue());
        return result;
    }

    if (batch.isImage() && !call.parser.isSet(yesOption) && !RVCtlQuestion::canAsk()) {
        return refused(RVCtlResult::failed(
            RVCtlExit::Usage,
            QStringLiteral("An image replaces everything on the device and restarts it, so it "
                           "needs --yes. Nothing was started.")));
    }
    const auto first = RVCtlObstacle::takeLocks(call, &preflight, batch.kind, lockTimeout);
    if (call.deadline.isOver()) {
        return result;
    }
    if (first) {
        return refused(RVCtlObstacle::result(*first));
    }
    if (preflight.runLock().state() == RVRunLock::State::Unavailable) {
        call.messages.warning(
            QStringLiteral("Nothing keeps another installation from running beside this one: %1.")
                .arg(preflight.runLock().reason()));
    }
    const QVector<RVObstacle> obstacles = preflight.obstacles(batch);
    if (!obstacles.isEmpty()) {
        return refused(RVCtlObstacle::result(obstacles.constFirst()));
    }
    Question question(call);
    RVCtlInstallRun run(call, &access, section, batch, &preflight, lockTimeout, &question);
    run.run();
    return run.result(result);
}
