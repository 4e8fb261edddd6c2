// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/ImageInstallBox.h"

#include "core/RVText.h"
#include "ui/RVStyle.h"
#include "ui/RVTrustTexts.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QMessageBox>

namespace
{

constexpr int longestImage = 200;

/// Asks in the language that the application has at the time.
class Question : public QMessageBox
{
public:
    explicit Question(const ImageQuestion &asked)
        : m_asked(asked)
    {
        setIcon(Warning);
        setStandardButtons(Abort | Apply);
        retranslateUi();
        // Names come from outside, and the label guesses at markup.
        findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"))
            ->setTextFormat(Qt::PlainText);
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
        QStringList parts{
            RVText::shown(m_asked.name + QLatin1Char(' ') + m_asked.version, longestImage)
                .trimmed(),
            m_asked.certificateWarning.translated(),
            m_asked.isChecked ? RVTrustTexts::imageNote() : QString(),
            QCoreApplication::translate(
                "ArchiveDDImage",
                "Installation of a new image will force a reboot and completely wipe "
                "out the existing disk image on the thin client, including all "
                "settings.  Do you want to continue?")};
        parts.removeAll(QString());
        setInformativeText(parts.join(QLatin1String("\n\n")));
    }

    const ImageQuestion &m_asked;
};

} // namespace

ImageInstallBox::ImageInstallBox(const RVPaths &paths)
    : m_paths(paths)
{
}

bool ImageInstallBox::confirmImageInstall()
{
    Question box(*this);
    const RVStyle style(m_paths);
    box.button(QMessageBox::Abort)->setIcon(style.StdIcon(RVStyle::Abort));
    box.button(QMessageBox::Apply)->setIcon(style.StdIcon(RVStyle::Apply));
    box.setDefaultButton(QMessageBox::Abort);
    box.setEscapeButton(QMessageBox::Abort);
    // A box that ends without an answer, as when the program quits, is no yes.
    return box.exec() == QMessageBox::Apply;
}
