// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "repository/RVDefinitions.h"

#include "core/RVLogger.h"
#include "descriptor/DataXML.h"
#include "repository/RVRepDesc.h"

#include <QDir>
#include <QFileInfo>

namespace
{

void explain(QString *reason, const QString &text)
{
    if (reason) {
        *reason = text;
    }
}

} // namespace

QStringList RVDefinitions::files(const RVPaths &paths)
{
    QStringList names = QDir(paths.definitionDir)
                            .entryList({QStringLiteral("*.xml")}, QDir::Files | QDir::Readable,
                                       QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    for (QString &name : names) {
        name.prepend(paths.definitionDir + QLatin1Char('/'));
    }
    return names;
}

RVDefinitions::Error RVDefinitions::readDirectory(const RVPaths &paths, List *list, QString *reason)
{
    const QDir directory(paths.definitionDir);
    if (!directory.exists()) {
        const QByteArray rule(52, '*');
        qCritical("%s", rule.constData());
        qCritical("CRITICAL:  CANNOT FIND REPOSITORY DEFINITION DIRECTORY");
        qCritical("  %s", qUtf8Printable(paths.definitionDir));
        qCritical("%s", rule.constData());
        RVLogger().log(0, "Abort: Cannot find repository definition directory\n%s",
                       qUtf8Printable(paths.definitionDir));
        return NoDefinitionDirectory;
    }

    for (const QString &file : files(paths)) {
        const Error error = readFile(file, list, reason);
        if (error != NoError) {
            return error;
        }
    }
    if (list->empty()) {
        RVLogger().log(2, "NO REPOSITORIES DEFINED!");
        return NoRepositories;
    }
    return NoError;
}

RVDefinitions::Error RVDefinitions::readFile(const QString &path, List *list, QString *reason)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || !info.isReadable() || !file.open(QIODevice::ReadOnly)) {
        return NoError;
    }
    RVLogger log;
    log.log(5, "  XML using '%s'", qUtf8Printable(info.absoluteFilePath()));

    DataXML document;
    QString message;
    int line = 0;
    int column = 0;
    if (!document.load(&file, &message, &line, &column)) {
        log.log(3, "BAD XML CONTENT!");
        log.log(3, "  %s, line %d, col %d", qUtf8Printable(message), line, column);
        explain(reason,
                QStringLiteral("%1:%2:%3: %4").arg(path).arg(line).arg(column).arg(message));
        return BadDefinitionFile;
    }
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String("repository_list")) {
        log.log(3, "TOP ELEMENT NOT repository_list!");
        explain(reason, QStringLiteral("%1: the top element is not repository_list").arg(path));
        return BadDefinitionFile;
    }
    const QString tag = QStringLiteral("repository");
    for (QDomElement element = root.firstChildElement(tag); !element.isNull();
         element = element.nextSiblingElement(tag)) {
        list->push_back(std::make_unique<RVRepDesc>());
        list->back()->parse(element);
    }
    return NoError;
}
