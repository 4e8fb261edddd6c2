// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/RVCtlText.h"

#include "core/ByteSize.h"
#include "core/RVText.h"
#include "descriptor/DataXML.h"

#include <QJsonDocument>
#include <QRegularExpression>

#include <cwchar>

namespace
{

/// Longer notes are nothing that anybody reads on a terminal.
constexpr int longestNotes = 64 * 1024;

int width(const QString &text)
{
    int columns = 0;
    for (const uint character : text.toUcs4()) {
        const int cells = ::wcwidth(static_cast<wchar_t>(character));
        // The C library may not know what Qt does.
        columns += cells < 0 ? 1 : cells;
    }
    return columns;
}

QString padded(const QString &text, int columns)
{
    return text + QString(qMax(0, columns - width(text)), QLatin1Char(' '));
}

QString withoutTrailingBlanks(QString line)
{
    while (line.endsWith(QLatin1Char(' '))) {
        line.chop(1);
    }
    return line;
}

} // namespace

QByteArray RVCtlText::json(const QJsonObject &document)
{
    // Whatever is not visible stands in a string, where its escape means the same.
    return RVText::safeLines(QString::fromUtf8(QJsonDocument(document).toJson())).toUtf8();
}

QJsonValue RVCtlText::jsonOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QString RVCtlText::table(const QStringList &headings, const QVector<QStringList> &rows)
{
    QVector<QStringList> lines{headings};
    QVector<int> widths;
    for (const QString &heading : headings) {
        widths.append(width(heading));
    }
    for (const QStringList &row : rows) {
        QStringList line;
        for (int column = 0; column < headings.size(); ++column) {
            line.append(RVText::safe(row.value(column)));
            widths[column] = qMax(widths.at(column), width(line.constLast()));
        }
        lines.append(line);
    }
    QString result;
    for (const QStringList &line : qAsConst(lines)) {
        QString text;
        for (int column = 0; column < line.size(); ++column) {
            text += padded(line.at(column), widths.at(column)) + QLatin1String("  ");
        }
        result += withoutTrailingBlanks(text) + QLatin1Char('\n');
    }
    return result;
}

QString RVCtlText::fields(const QVector<QPair<QString, QString>> &fields)
{
    int columns = 0;
    for (const auto &field : fields) {
        columns = qMax(columns, field.second.isEmpty() ? 0 : width(field.first) + 3);
    }
    QString result;
    for (const auto &field : fields) {
        if (!field.second.isEmpty()) {
            result += padded(field.first + QLatin1Char(':'), columns) + RVText::safe(field.second)
                + QLatin1Char('\n');
        }
    }
    return result;
}

QString RVCtlText::notes(const QString &html)
{
    static const QRegularExpression hidden(
        QStringLiteral("<!--.*?-->|<(style|script|head|title)\\b.*?</\\1\\s*>"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression item(QStringLiteral("<li\\b[^>]*>"),
                                         QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression lineEnd(
        QStringLiteral("<(br|/p|/div|/h[1-6]|/tr|/ul|/ol|/table|/pre|p|h[1-6]|ul|ol)\\b[^>]*>"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression tag(QStringLiteral("</?[A-Za-z][^>]*>"));
    static const QRegularExpression blankLines(QStringLiteral("\n{3,}"));

    QString text = RVText::shortened(html, longestNotes);
    text.remove(QLatin1String("<![CDATA[")).remove(QLatin1String("]]>"));
    text.remove(hidden)
        .replace(item, QStringLiteral("\n- "))
        .replace(lineEnd, QStringLiteral("\n"));
    text = DataXML::plainText(text.remove(tag));
    QStringList lines;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        lines.append(line.simplified());
    }
    return lines.join(QLatin1Char('\n')).replace(blankLines, QStringLiteral("\n\n")).trimmed();
}

QString RVCtlText::size(qint64 bytes)
{
    return bytes < 0 ? QString() : ByteSize(bytes).toEnglish();
}
