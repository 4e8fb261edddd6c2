// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

class QTranslator;

/// Brings the library's own catalogues into the application, in the language of QLocale(), and
/// follows it: a change is heard when the application gets a LanguageChange or a LocaleChange. A
/// host need not know that there are catalogues. RVSection owns it.
class RVTranslator : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(RVTranslator)

public:
    explicit RVTranslator(QObject *parent = nullptr);
    ~RVTranslator() override;

    /// The first of these languages that there is a catalogue for ("de", "pt_BR"); empty where
    /// English, which needs none, comes before it. Best first, as QLocale::uiLanguages() has them.
    static QString catalogueFor(const QStringList &languages);
    /// Of the catalogue that is in use.
    QString language() const { return m_language; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow();
    void install(std::unique_ptr<QTranslator> &translator, const QString &name,
                 const QString &directory);

    QString m_language;
    std::unique_ptr<QTranslator> m_texts;
    std::unique_ptr<QTranslator> m_qtTexts;
    bool m_following = false;
};
