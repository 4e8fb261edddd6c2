// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVTranslator.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace
{

const QString &catalogues()
{
    static const QString directory = QStringLiteral(":/translations");
    return directory;
}

/// Chinese is told apart by its script; Portuguese has one catalogue for all.
QString catalogueName(const QLocale &language)
{
    switch (language.language()) {
    case QLocale::Chinese:
        return language.script() == QLocale::TraditionalHanScript ? QStringLiteral("zh_TW")
                                                                  : QStringLiteral("zh_CN");
    case QLocale::Portuguese:
        return QStringLiteral("pt_BR");
    default:
        return language.name().section(QLatin1Char('_'), 0, 0);
    }
}

/// Any text that every catalogue of Qt has.
bool areQtTextsTranslated()
{
    constexpr char text[] = "The certificate has expired";
    return QCoreApplication::translate("QSslSocket", text) != QLatin1String(text);
}

} // namespace

RVTranslator::RVTranslator(QObject *parent)
    : QObject(parent)
{
    // A static library's resources are linked in only when they are named.
    Q_INIT_RESOURCE(ravel_translations);
    QCoreApplication::instance()->installEventFilter(this);
    follow();
}

RVTranslator::~RVTranslator()
{
    for (QTranslator *translator : {m_texts.get(), m_qtTexts.get()}) {
        if (translator) {
            QCoreApplication::removeTranslator(translator);
        }
    }
}

QString RVTranslator::catalogueFor(const QStringList &languages)
{
    for (const QString &name : languages) {
        const QLocale language(name);
        if (language.language() == QLocale::English) {
            break;
        }
        QString catalogue = catalogueName(language);
        if (QFile::exists(QStringLiteral("%1/ravel_%2.qm").arg(catalogues(), catalogue))) {
            return catalogue;
        }
    }
    return {};
}

bool RVTranslator::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == QCoreApplication::instance()
        && (event->type() == QEvent::LanguageChange || event->type() == QEvent::LocaleChange)) {
        if (m_following) {
            // Of the catalogues that are being changed: the event that led to it is still under way
            // to the widgets.
            return true;
        }
        // Before any widget hears of the change.
        const bool announced = event->type() == QEvent::LanguageChange;
        m_following = announced;
        follow();
        m_following = false;
    }
    return QObject::eventFilter(watched, event);
}

void RVTranslator::follow()
{
    const QString language = catalogueFor(QLocale().uiLanguages());
    if (language == m_language) {
        return;
    }
    m_language = language;
    install(m_texts, QStringLiteral("ravel"), catalogues());
    install(m_qtTexts, QString(), QString());
    // The host's, if it has brought them, else the certificate's errors would stay in English.
    if (!areQtTextsTranslated()) {
        install(m_qtTexts, QStringLiteral("qtbase"),
                QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    }
}

void RVTranslator::install(std::unique_ptr<QTranslator> &translator, const QString &name,
                           const QString &directory)
{
    if (translator) {
        QCoreApplication::removeTranslator(translator.get());
        translator.reset();
    }
    if (m_language.isEmpty() || name.isEmpty()) {
        return;
    }
    auto loaded = std::make_unique<QTranslator>();
    if (loaded->load(name + QLatin1Char('_') + m_language, directory)) {
        QCoreApplication::installTranslator(loaded.get());
        translator = std::move(loaded);
    }
}
