// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/RVPaths.h"

#include <QStringList>

#include <memory>
#include <vector>

class RVRepDesc;

/// Reads the repository definition files. The page that shows them turns an error into its
/// exception.
class RVDefinitions
{
public:
    enum Error {
        NoError = 0,
        NoDefinitionDirectory = 1,
        BadDefinitionFile = 2,
        NoRepositories = 3,
    };
    using List = std::vector<std::unique_ptr<RVRepDesc>>;

    /// The files that readDirectory() reads, as absolute or relative as the directory is.
    static QStringList files(const RVPaths &paths);
    /// All files of the definition directory in name order. The first error ends the scan; what was
    /// read before it stays in `list`. `reason` (may be null) gets which file it was, and why.
    static Error readDirectory(const RVPaths &paths, List *list, QString *reason = nullptr);
    /// One file; appends to `list`. A file that is not readable contributes nothing.
    static Error readFile(const QString &path, List *list, QString *reason = nullptr);
};
