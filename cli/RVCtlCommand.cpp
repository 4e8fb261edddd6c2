// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"

#include "cli/RVCtlAccess.h"
#include "cli/RVCtlOffers.h"

const std::vector<RVCtlCommand> &RVCtlCommand::all()
{
    using namespace RVCtlCommands;
    const QList<QCommandLineOption> none;
    const QList<QCommandLineOption> access = RVCtlAccess::options();
    static const std::vector<RVCtlCommand> commands{
        {"status", "", 0, 0, never, none, status,
         "Show the base system, service packs, architecture and model."},
        {"repos", "", 0, 0, never, none, repos, "Show the sections in the order of the window."},
        {"list", "[SECTION...]", 0, anyNumber, never, listOptions(), list,
         "Refresh and show what the window would offer."},
        {"explain", "[SECTION...]", 0, anyNumber, never, access, explain,
         "Refresh and show for every archive why it is offered or not."},
        {"details", "SECTION NAME", 2, 2, never, access, details,
         "Refresh and show everything that is known about one update."},
        {"plan", "SECTION [NAME...]", 1, anyNumber, never,
         QList<QCommandLineOption>{RVCtlOffers::reinstallOption()} + access, plan,
         "Refresh and show what an installation would download and run."},
        {"install", "SECTION [NAME...]", 1, anyNumber, 0, installOptions(), install,
         "Download and install updates, by default those that the window preselects."},
        {"repair", "", 0, 0, 0, repairOptions(), repair,
         "Set right what an interrupted installation of packages left."},
        {"history", "[SECTION or NAME]", 0, 1, never, historyOptions(), history,
         "Show what was installed, when, by whom and how it ended."},
        {"download", "SECTION [NAME...] --to DIR", 1, anyNumber, never, downloadOptions(), download,
         "Download updates into a folder that is itself a repository."},
        {"lint", "[FILE or SECTION...]", 0, anyNumber, never, lintOptions(), lint,
         "Check definition files, repositories and descriptors for defects."},
        {"location", "SECTION [URL | - | default]", 1, 2, 2, none, location,
         "Show or store the location of a section."},
        {"proxy", "[none | TYPE HOST:PORT | TYPE none]", 0, 2, 1, none, proxy,
         "Show or store the proxies; TYPE is http, https, ftp or all."},
        {"trust", "reset SECTION", 2, 2, 0, none, trust,
         "Forget the newest list of a signed section, to accept an older one."},
        {"sums", "FOLDER --id ID --valid-for DAYS", 1, 1, never, sumsOptions(), sums,
         "Write the list of sums for a folder that becomes a signed repository."},
    };
    return commands;
}
