// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
//
// Every page and dialog in every language of the catalogues, switched at run time.
#include "tests/support/WarningGuard.h"
#include "tests/ui/Gallery.h"
#include "ui/ImageInstallBox.h"
#include "ui/RVErrorDialog.h"
#include "ui/RVItalics.h"
#include "ui/RVTranslator.h"
#include "ui/SelectionTable.h"

#include <plume/PlumeMainWindow.h>

#include <QApplication>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>
#include <QTimer>
#include <QTranslator>
#include <QXmlStreamReader>

#include <algorithm>

namespace
{

// Stands before every line of a text that passed through a translator.
const QChar translatedMark(0x2055);

class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        QString text = translatedMark + QString::fromUtf8(source);
        for (const char *end : {"\n", "<br />"}) {
            text.replace(QLatin1String(end), QLatin1String(end) + translatedMark);
        }
        return text;
    }
    bool isEmpty() const override { return false; }
};

void announce()
{
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
    // Windows get theirs by the event loop.
    QCoreApplication::sendPostedEvents();
}

/// Nested layouts need more than one turn.
void settle()
{
    for (int i = 0; i < 10; ++i) {
        QCoreApplication::processEvents();
    }
}

void speak(const QString &code)
{
    QLocale::setDefault(code.isEmpty() ? QLocale(QLocale::C) : QLocale(code));
    announce();
}

QString withoutMarks(QString text)
{
    for (const ushort mark : {0x2068, 0x2069, 0x200b}) {
        text.remove(QChar(mark));
    }
    return text;
}

/// What a language says with the very words of the source.
QList<QRegularExpression> sameWords(const QString &code)
{
    QList<QRegularExpression> result;
    QFile file(QStringLiteral(RAVEL_CATALOGUES "/ravel_%1.ts").arg(code));
    if (!file.open(QIODevice::ReadOnly)) {
        return result;
    }
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement() && xml.tokenType() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const QString translation =
                withoutMarks(xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed());
            static const QRegularExpression end(QStringLiteral("\n|<br />"));
            const QStringList from = source.split(end);
            const QStringList to = translation.split(end);
            for (int i = 0; i < from.size() && from.size() == to.size(); ++i) {
                if (from.at(i).trimmed() == to.at(i).trimmed()) {
                    QString pattern = QRegularExpression::escape(from.at(i).trimmed());
                    pattern.replace(QRegularExpression(QStringLiteral("\\\\?%\\d")),
                                    QStringLiteral(".*"));
                    result.append(
                        QRegularExpression(QLatin1Char('^') + pattern + QLatin1Char('$')));
                }
            }
        }
    }
    return result;
}

QStringList languages()
{
    return QStringLiteral(RAVEL_LANGUAGES).split(QLatin1Char(' '));
}

void languageRows()
{
    QTest::addColumn<QString>("code");
    const QStringList codes = languages();
    for (const QString &code : codes) {
        QTest::newRow(qPrintable(code)) << code;
    }
}

/// Whether a part of a line that runs from right to left is drawn as one run from left to right.
bool isDrawnAsOne(const QString &text, int begin, int length)
{
    QTextLayout layout(text);
    QTextOption option;
    option.setTextDirection(Qt::RightToLeft);
    layout.setTextOption(option);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    for (int i = begin; i + 1 < begin + length; ++i) {
        if (line.cursorToX(i + 1) <= line.cursorToX(i)) {
            return false;
        }
    }
    return begin >= 0;
}

QChar mnemonicOf(const QString &text)
{
    const QString key = QKeySequence::mnemonic(text).toString();
    return key.isEmpty() ? QChar() : key.back();
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void cleanupTestCase();

    void everyTextIsTranslatable();
    void switchesAtRunTime_data() { languageRows(); }
    void switchesAtRunTime();
    void imageQuestionSwitches_data() { languageRows(); }
    void imageQuestionSwitches();
    void mnemonicsAreDistinct_data() { languageRows(); }
    void mnemonicsAreDistinct();
    void nothingIsCut_data() { languageRows(); }
    void nothingIsCut();
    void mirrorsRightToLeft_data();
    void mirrorsRightToLeft();
    void amountsAreSeen_data() { mirrorsRightToLeft_data(); }
    void amountsAreSeen();
    void nothingIsSlanted_data() { mirrorsRightToLeft_data(); }
    void nothingIsSlanted();
    void addressesStayReadable_data();
    void addressesStayReadable();
    void fingerprintsStayReadable_data() { mirrorsRightToLeft_data(); }
    void fingerprintsStayReadable();

private:
    static QList<QList<Gallery::Text>> textsOf(const Gallery &gallery)
    {
        QList<QList<Gallery::Text>> result;
        for (const Gallery::View &view : gallery.views()) {
            result.append(Gallery::texts(*view.window));
        }
        return result;
    }

    const Gallery::View &view(const QString &name) const
    {
        const auto &views = m_gallery->views();
        const auto isNamed = [&name](const Gallery::View &view) {
            return view.name == name;
        };
        return *std::find_if(views.cbegin(), views.cend(), isNamed);
    }

    std::unique_ptr<WarningGuard> m_guard;
    std::unique_ptr<Gallery> m_gallery;
    QList<QList<Gallery::Text>> m_english;
    QList<QList<Gallery::Text>> m_marked;
};

void tst_Translations::initTestCase()
{
    m_guard = std::make_unique<WarningGuard>();
    speak({});
    m_gallery = std::make_unique<Gallery>();
    for (const Gallery::View &view : m_gallery->views()) {
        view.enter();
    }
    m_english = textsOf(*m_gallery);
    MarkingTranslator marking;
    QCoreApplication::installTranslator(&marking);
    announce();
    m_marked = textsOf(*m_gallery);
    QCoreApplication::removeTranslator(&marking);
    announce();
}

void tst_Translations::cleanup()
{
    speak({});
}

void tst_Translations::cleanupTestCase()
{
    m_gallery.reset();
    QLocale::setDefault(QLocale::system());
    m_guard.reset();
}

// Every word that is neither the example's nor a name passed through the translators, and did so
// again when they changed.
void tst_Translations::everyTextIsTranslatable()
{
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{3,}"));
    static const QRegularExpression content(
        QStringLiteral("[Dd]ata|[Ee]xample|file:|^HTTP$|^HTTPS$|^FTP$|^HTML|^<html"));
    QStringList missed;
    for (int i = 0; i < m_marked.size(); ++i) {
        const Gallery::View &view = m_gallery->views()[static_cast<std::size_t>(i)];
        for (const Gallery::Text &text : m_marked.at(i)) {
            if (text.text.contains(translatedMark) || !text.text.contains(word)
                || text.text.contains(content)) {
                continue;
            }
            missed.append(view.name + QLatin1String(": ") + text.place + QLatin1String(": ")
                          + text.text);
        }
    }
    missed.removeDuplicates();
    QVERIFY2(missed.isEmpty(), qPrintable(missed.join(QLatin1Char('\n'))));
}

void tst_Translations::switchesAtRunTime()
{
    QFETCH(QString, code);
    speak(code);
    const QList<QList<Gallery::Text>> switched = textsOf(*m_gallery);
    const QList<QRegularExpression> same = sameWords(code);
    const auto isSame = [&same](const QString &text) {
        // Qt's word for it is the same in many languages.
        if (text == QLatin1String("OK") || text == QLatin1String("&OK")) {
            return true;
        }
        // A cell of the proxies says its row, its column and its content.
        static const QRegularExpression around(QStringLiteral("^(HTTPS?|FTP), |: $"));
        const QString words = withoutMarks(text).trimmed();
        const QString inside = withoutMarks(QString(text).remove(around)).trimmed();
        return std::any_of(same.cbegin(), same.cend(), [&](const QRegularExpression &other) {
            return other.match(words).hasMatch() || other.match(inside).hasMatch();
        });
    };
    QStringList english;
    int changed = 0;
    for (int i = 0; i < switched.size(); ++i) {
        const Gallery::View &view = m_gallery->views()[static_cast<std::size_t>(i)];
        QCOMPARE(switched.at(i).size(), m_english.at(i).size());
        for (int j = 0; j < switched.at(i).size(); ++j) {
            const QString &text = switched.at(i).at(j).text;
            const QString &source = m_english.at(i).at(j).text;
            if (text != source) {
                ++changed;
            } else if (m_marked.at(i).at(j).text != source && !isSame(text)) {
                english.append(view.name + QLatin1String(": ") + switched.at(i).at(j).place
                               + QLatin1String(": ") + text);
            }
        }
    }
    QVERIFY2(english.isEmpty(), qPrintable(english.join(QLatin1Char('\n'))));
    QVERIFY2(changed > 200, qPrintable(QString::number(changed)));

    // One that was made in the language says the same.
    const Gallery fresh;
    for (const Gallery::View &view : fresh.views()) {
        view.enter();
    }
    const QList<QList<Gallery::Text>> made = textsOf(fresh);
    for (int i = 0; i < made.size(); ++i) {
        QCOMPARE(made.at(i).size(), switched.at(i).size());
        for (int j = 0; j < made.at(i).size(); ++j) {
            // The message of a failure was made when it was shown; places differ by directory.
            const QString &text = made.at(i).at(j).text;
            if (!text.contains(QLatin1String("example/packages"))
                && !text.contains(QLatin1String("file:"))) {
                QCOMPARE(switched.at(i).at(j).text, text);
            }
        }
    }

    speak({});
    const QList<QList<Gallery::Text>> back = textsOf(*m_gallery);
    for (int i = 0; i < back.size(); ++i) {
        for (int j = 0; j < back.at(i).size(); ++j) {
            QCOMPARE(back.at(i).at(j).text, m_english.at(i).at(j).text);
        }
    }
}

void tst_Translations::imageQuestionSwitches()
{
    QFETCH(QString, code);
    QStringList before;
    QStringList after;
    const auto texts = [](const QMessageBox &box) {
        QStringList result{box.text(), box.informativeText()};
        for (const QAbstractButton *button : box.buttons()) {
            result.append(button->text());
        }
        return result;
    };
    QTimer timer;
    connect(&timer, &QTimer::timeout, &timer, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box) {
            timer.stop();
            before = texts(*box);
            speak(code);
            after = texts(*box);
            box->reject();
        }
    });
    timer.start(0);
    QVERIFY(!ImageInstallBox().confirmImageInstall());
    QCOMPARE(before.size(), 4);
    for (int i = 0; i < before.size(); ++i) {
        QVERIFY2(after.at(i) != before.at(i), qPrintable(after.at(i)));
    }
}

// Alt and a letter mean one thing at a time.
void tst_Translations::mnemonicsAreDistinct()
{
    QFETCH(QString, code);
    speak(code);
    QStringList collisions;
    int count = 0;
    for (const Gallery::View &view : m_gallery->views()) {
        view.enter();
        QHash<QChar, QString> taken;
        const QList<QWidget *> widgets = view.window->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            QString text;
            if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
                text = button->text();
            } else if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
                text = box->title();
            } else if (const auto *label = qobject_cast<const QLabel *>(widget)) {
                text = label->buddy() ? label->text() : QString();
            }
            const QChar key = mnemonicOf(text);
            if (key.isNull() || !widget->isVisibleTo(view.window)) {
                continue;
            }
            ++count;
            if (taken.contains(key)) {
                collisions.append(
                    QStringLiteral("%1: '%2' and '%3'").arg(view.name, taken.value(key), text));
            }
            taken.insert(key, text);
        }
    }
    QVERIFY2(collisions.isEmpty(), qPrintable(collisions.join(QLatin1Char('\n'))));
    QVERIFY(count >= 13);
}

void tst_Translations::nothingIsCut()
{
    QFETCH(QString, code);
    speak(code);
    QStringList cut;
    for (const Gallery::View &view : m_gallery->views()) {
        view.enter();
        view.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(view.window));
        settle();
        view.window->resize(view.window->size().expandedTo(view.window->sizeHint()));
        settle();
        const QList<QWidget *> widgets = view.window->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            if (!widget->isVisibleTo(view.window)
                || !(qobject_cast<const QAbstractButton *>(widget) || label)) {
                continue;
            }
            const QSize hint = widget->sizeHint();
            const bool isLow = label && label->wordWrap()
                ? widget->height() < label->heightForWidth(widget->width())
                : widget->height() < hint.height() || widget->width() < hint.width();
            if (isLow) {
                cut.append(QStringLiteral("%1: %2 %3x%4, needs %5x%6")
                               .arg(view.name,
                                    label ? label->text()
                                          : qobject_cast<const QAbstractButton *>(widget)->text())
                               .arg(widget->width())
                               .arg(widget->height())
                               .arg(hint.width())
                               .arg(hint.height()));
            }
        }
        view.window->hide();
    }
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
}

void tst_Translations::mirrorsRightToLeft_data()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("Arabic") << "ar";
    QTest::newRow("Hebrew") << "he";
}

void tst_Translations::mirrorsRightToLeft()
{
    QFETCH(QString, code);
    // The buttons of the table, from left to right.
    const auto buttons = [this] {
        const Gallery::View &view = this->view(QStringLiteral("RVMainPage choices"));
        view.enter();
        view.window->show();
        settle();
        QList<QPushButton *> result =
            view.window->findChildren<QPushButton *>(QStringLiteral("RVActionButton"));
        const auto isHidden = [](const QPushButton *button) {
            return !button->isVisible();
        };
        result.erase(std::remove_if(result.begin(), result.end(), isHidden), result.end());
        std::sort(result.begin(), result.end(), [](const QPushButton *a, const QPushButton *b) {
            return a->mapToGlobal(QPoint()).x() < b->mapToGlobal(QPoint()).x();
        });
        view.window->hide();
        return result;
    };
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
    QList<QPushButton *> order = buttons();
    QCOMPARE(order.size(), 5);
    speak(code);
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    for (const Gallery::View &view : m_gallery->views()) {
        QCOMPARE(view.window->layoutDirection(), Qt::RightToLeft);
    }
    std::reverse(order.begin(), order.end());
    QCOMPARE(buttons(), order);
    speak({});
    QCOMPARE(QApplication::layoutDirection(), Qt::LeftToRight);
}

// The text of a progress bar stands out from what is filled and from what is not.
void tst_Translations::amountsAreSeen()
{
    QFETCH(QString, code);
    speak(code);
    auto *bar = view(QStringLiteral("BusyDialog download")).window->findChild<QProgressBar *>();
    bar->resize(400, 30);
    const QImage with = bar->grab().toImage();
    const QString format = bar->format();
    bar->setFormat(QString(QLatin1Char(' ')));
    const QImage without = bar->grab().toImage();
    bar->setFormat(format);
    int different = 0;
    for (int x = 0; x < with.width(); ++x) {
        for (int y = 0; y < with.height(); ++y) {
            if (qAbs(qGray(with.pixel(x, y)) - qGray(without.pixel(x, y))) > 100) {
                ++different;
            }
        }
    }
    QVERIFY2(different > 50, qPrintable(QString::number(different)));
}

// These scripts have no italics; fonts without them show boxes.
void tst_Translations::nothingIsSlanted()
{
    QFETCH(QString, code);
    speak(code);
    QStringList slanted;
    int upright = 0;
    const auto look = [&](const QTextDocument &document) {
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextFragment fragment = part.fragment();
                if (takesItalics(fragment.text())) {
                    continue;
                }
                ++upright;
                if (fragment.charFormat().fontItalic()) {
                    slanted.append(fragment.text());
                }
            }
        }
    };
    for (const Gallery::View &view : m_gallery->views()) {
        for (const QLabel *label : view.window->findChildren<QLabel *>()) {
            QTextDocument document;
            document.setHtml(label->text());
            look(document);
        }
        for (const QTextEdit *edit : view.window->findChildren<QTextEdit *>()) {
            look(*edit->document());
        }
        for (const SelectionTable *table : view.window->findChildren<SelectionTable *>()) {
            for (int row = 0; row < table->rowCount(); ++row) {
                const QTableWidgetItem *installed = table->item(row, 2);
                if (!takesItalics(installed->text()) && installed->font().italic()) {
                    slanted.append(installed->text());
                }
            }
        }
    }
    QVERIFY2(slanted.isEmpty(), qPrintable(slanted.join(QLatin1Char('\n'))));
    QVERIFY(upright > 20);
}

void tst_Translations::addressesStayReadable_data()
{
    mirrorsRightToLeft_data();
}

// An address inside a sentence that runs from right to left is drawn as one run from left to right,
// its last slash too.
void tst_Translations::addressesStayReadable()
{
    QFETCH(QString, code);
    speak(code);
    const QString url = QStringLiteral("https://updates.example/6.1/packages-2.0/");
    for (const int error : {1, 5, 19, 99, 203, 299, 399, 7}) {
        const QString text = RVErrorDialog::messageFor(error, url);
        QVERIFY2(isDrawnAsOne(text, text.indexOf(url), url.size()), qPrintable(text));
    }
}

// So are the number and the fingerprints of a certificate, whatever digits they begin with.
void tst_Translations::fingerprintsStayReadable()
{
    QFETCH(QString, code);
    speak(code);
    static const QRegularExpression pairs(QStringLiteral("([0-9a-f]{2}:){7,}[0-9a-f]{2}"));
    int count = 0;
    const QTextEdit *details = view(QStringLiteral("CertDialog")).window->findChild<QTextEdit *>();
    for (QTextBlock block = details->document()->begin(); block.isValid(); block = block.next()) {
        const QStringList lines = block.text().split(QChar::LineSeparator);
        for (const QString &line : lines) {
            const QRegularExpressionMatch match = pairs.match(line);
            if (match.hasMatch()) {
                ++count;
                QVERIFY2(isDrawnAsOne(line, match.capturedStart(), match.capturedLength()),
                         qPrintable(line));
            }
        }
    }
    QVERIFY(count >= 3);
}

QTEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
