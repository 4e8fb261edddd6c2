// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVStyle.h"

#include "core/RVLogger.h"

#include <QApplication>
#include <QFileInfo>
#include <QStyle>

namespace
{

struct IconRow {
    RVStyle::StdIcon_t number;
    const char *name;
    const char
        *file; ///< in the icon directory, or one of our own drawings when it begins with ":/"
    const char *themeName; ///< of the freedesktop icon naming specification
    QStyle::StandardPixmap standard;
    const char *drawing;
};

constexpr IconRow iconTable[] = {
    {RVStyle::Abort, "Abort", "stock_cancel.svg", "dialog-cancel", QStyle::SP_DialogCancelButton,
     ":/images/stock/cancel.svg"},
    {RVStyle::Apply, "Apply", "stock_apply.svg", "dialog-ok-apply", QStyle::SP_DialogApplyButton,
     ":/images/stock/apply.svg"},
    {RVStyle::Cancel, "Cancel", "stock_cancel.svg", "dialog-cancel", QStyle::SP_DialogCancelButton,
     ":/images/stock/cancel.svg"},
    // Not the style's dialog button: it is black on whatever is behind it.
    {RVStyle::Close, "Close", "stock_close.svg", "window-close", QStyle::SP_TitleBarCloseButton,
     ":/images/stock/close.svg"},
    {RVStyle::Info, "Info", ":/images/info.svg", "dialog-information",
     QStyle::SP_MessageBoxInformation, ":/images/info.svg"},
    {RVStyle::Install, "Install", "stock_download.svg", "download", QStyle::SP_ArrowDown,
     ":/images/stock/download.svg"},
    {RVStyle::Ok, "Ok", "stock_ok.svg", "dialog-ok", QStyle::SP_DialogOkButton,
     ":/images/stock/ok.svg"},
    {RVStyle::Refresh, "Refresh", "stock_refresh.svg", "view-refresh", QStyle::SP_BrowserReload,
     ":/images/stock/refresh.svg"},
    {RVStyle::RestoreDefaults, "RestoreDefaults", "stock_revert-to-saved.svg", "document-revert",
     QStyle::SP_DialogResetButton, ":/images/stock/revert.svg"},
    {RVStyle::SelectAll, "SelectAll", "stock_add.svg", "edit-select-all",
     QStyle::SP_DialogYesToAllButton, ":/images/stock/add.svg"},
    {RVStyle::SelectNone, "SelectNone", "stock_remove.svg", "edit-select-none",
     QStyle::SP_DialogNoToAllButton, ":/images/stock/remove.svg"},
    {RVStyle::Yes, "Yes", "stock_yes.svg", "dialog-yes", QStyle::SP_DialogYesButton,
     ":/images/stock/yes.svg"},
    {RVStyle::No, "No", "stock_no.svg", "dialog-no", QStyle::SP_DialogNoButton,
     ":/images/stock/no.svg"},
    {RVStyle::ImageRepository, "ImageRepository", ":/images/image_file.svg", "drive-harddisk",
     QStyle::SP_DriveHDIcon, ":/images/image_file.svg"},
    {RVStyle::SPRepository, "SPRepository", ":/images/service_pack.svg", "security-high",
     QStyle::SP_FileDialogDetailedView, ":/images/service_pack.svg"},
    {RVStyle::PackageRepository, "PackageRepository", ":/images/update_pack.svg",
     "package-x-generic", QStyle::SP_FileIcon, ":/images/update_pack.svg"},
};

bool isDrawable(const QIcon &icon)
{
    return !icon.pixmap(16).isNull();
}

// An icon of a file that is missing, or that no installed plugin reads, warns or paints nothing
// later on: ask now.
QIcon fileIcon(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable()) {
        return {};
    }
    const QIcon icon(path);
    return isDrawable(icon) ? icon : QIcon();
}

QIcon rowIcon(const IconRow &row, const QString &iconDir)
{
    const QString name = QLatin1String(row.file);
    const bool ownDrawing = name.startsWith(QLatin1String(":/"));
    QIcon icon = fileIcon(ownDrawing ? name : iconDir + QLatin1Char('/') + name);
    if (icon.isNull()) {
        icon = QIcon::fromTheme(QLatin1String(row.themeName));
    }
    if (!isDrawable(icon)) {
        icon = QApplication::style()->standardIcon(row.standard);
    }
    return isDrawable(icon) ? icon : fileIcon(QLatin1String(row.drawing));
}

} // namespace

// The drawings are in every binary that holds this file, also in one that links it statically,
// where nothing else would register them. (The macro does not work inside a namespace.)
static void registerDrawings()
{
    Q_INIT_RESOURCE(ravel);
}

RVStyle::RVStyle(const RVPaths &paths)
    : m_iconDir(paths.iconDir)
{
    registerDrawings();
}

QIcon RVStyle::StdIcon(StdIcon_t number) const
{
    for (const IconRow &row : iconTable) {
        if (row.number == number) {
            return rowIcon(row, m_iconDir);
        }
    }
    RVLogger().log(4, "No match for std icon number %d", static_cast<int>(number));
    return {};
}

QIcon RVStyle::StdIcon(const QString &name) const
{
    for (const IconRow &row : iconTable) {
        if (name.compare(QLatin1String(row.name), Qt::CaseInsensitive) == 0) {
            return rowIcon(row, m_iconDir);
        }
    }
    RVLogger().log(4, "No match for std icon name %s", qUtf8Printable(name));
    return {};
}
