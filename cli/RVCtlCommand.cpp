// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlCommand.h"

#include "cli/RVCtlDetails.h"
#include "cli/RVCtlDownload.h"
#include "cli/RVCtlExplain.h"
#include "cli/RVCtlInstall.h"
#include "cli/RVCtlLint.h"
#include "cli/RVCtlList.h"
#include "cli/RVCtlLocation.h"
#include "cli/RVCtlPlan.h"
#include "cli/RVCtlProxy.h"
#include "cli/RVCtlRepos.h"
#include "cli/RVCtlStatus.h"

bool RVCtlCommand::isLogged(const QStringList & /*arguments*/) const
{
    return false;
}

std::vector<std::unique_ptr<RVCtlCommand>> RVCtlCommand::all()
{
    std::vector<std::unique_ptr<RVCtlCommand>> commands;
    commands.push_back(std::make_unique<RVCtlStatus>());
    commands.push_back(std::make_unique<RVCtlRepos>());
    commands.push_back(std::make_unique<RVCtlList>());
    commands.push_back(std::make_unique<RVCtlExplain>());
    commands.push_back(std::make_unique<RVCtlDetails>());
    commands.push_back(std::make_unique<RVCtlPlan>());
    commands.push_back(std::make_unique<RVCtlInstall>());
    commands.push_back(std::make_unique<RVCtlDownload>());
    commands.push_back(std::make_unique<RVCtlLint>());
    commands.push_back(std::make_unique<RVCtlLocation>());
    commands.push_back(std::make_unique<RVCtlProxy>());
    return commands;
}
