// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/ImageInstallBox.h"

#include "ui/RVStyle.h"
#include "ui/RVTrustTexts.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QMessageBox>

namespace
{

/// Asks in the language that the application has at the time.
class Question : public QMessageBox
{
public:
    explicit Question(bool isChecked)
        : m_isChecked(isChecked)
    {
        setIcon(Warning);
        setStandardButtons(Abort | Apply);
        retranslateUi();
    }

protected:
    void changeEvent(QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange) {
            retranslateUi();
        }
        QMessageBox::changeEvent(event);
    }

private:
    void retranslateUi()
    {
        // The catalogues have the texts under the archive that asks.
        setText(QCoreApplication::translate("ArchiveDDImage", "Full-Image install pending."));
        const QString text = QCoreApplication::translate(
            "ArchiveDDImage",
            "Installation of a new image will force a reboot and completely wipe out the existing "
            "disk image on the thin client, including all settings.  Do you want to continue?");
        setInformativeText(m_isChecked ? RVTrustTexts::imageNote() + QLatin1String("\n\n") + text
                                       : text);
    }

    const bool m_isChecked;
};

} // namespace

ImageInstallBox::ImageInstallBox(const RVPaths &paths)
    : m_paths(paths)
{
}

bool ImageInstallBox::confirmImageInstall()
{
    Question box(m_isChecked);
    const RVStyle style(m_paths);
    box.button(QMessageBox::Abort)->setIcon(style.StdIcon(RVStyle::Abort));
    box.button(QMessageBox::Apply)->setIcon(style.StdIcon(RVStyle::Apply));
    box.setDefaultButton(QMessageBox::Abort);
    box.setEscapeButton(QMessageBox::Abort);
    // A box that ends without an answer, as when the program quits, is no yes.
    return box.exec() == QMessageBox::Apply;
}
