// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "descriptor/XmlCheck.h"
#include "lint/RVLintDefinition.h"
#include "lint/RVLintDescriptor.h"
#include "lint/RVLintReport.h"
#include "repository/RVChecksums.h"
#include "tests/support/DpkgRoot.h"
#include "tests/support/FakeRoot.h"
#include "tests/support/HttpServer.h"
#include "tests/support/LogFile.h"
#include "tests/support/Privileges.h"
#include "tests/support/XarWriter.h"
#include "ui/NotesDocument.h"
#include "ui/RVStyle.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr int timeout = 60000;
/// What "ends quickly" means: seconds of the processor, under a sanitizer too.
constexpr qint64 quick = 20;

const QString definition = QStringLiteral("root/etc/cvtc-ravel/repositories/10-packages.xml");
const QString descriptor = QStringLiteral("repo/tc-audio_1.0-1_all.xml");
const QString package = QStringLiteral("repo/tc-audio_1.0-1_all.deb");

const char definitionText[] = "<repository_list>\n"
                              "<repository>\n"
                              "  <title>Packages</title>\n"
                              "  <title xml:lang=\"de\">Pakete</title>\n"
                              "  <description>Single programs &amp; drivers</description>\n"
                              "  <uri_description>Location</uri_description>\n"
                              "  <settings_key>package_uri</settings_key>\n"
                              "  <default_uri>file://@/repo</default_uri>\n"
                              "  <selector_type>PickAny</selector_type>\n"
                              "  <icon>PackageRepository</icon>\n"
                              "  <filter_sps>no</filter_sps>\n"
                              "  <filter_pattern>\n"
                              "    <archive_pattern>\\.deb$</archive_pattern>\n"
                              "    <descriptor_pattern>\\.xml$</descriptor_pattern>\n"
                              "  </filter_pattern>\n"
                              "</repository>\n"
                              "</repository_list>\n";

const char descriptorText[] = "<update_data>\n"
                              "<name>tc-audio</name>\n"
                              "<title>Sound</title>\n"
                              "<title xml:lang=\"de_CH\">Ton</title>\n"
                              "<notes xml:lang=\"en\"><p>Better <b>sound</b>.</p></notes>\n"
                              "<version>1.0-1</version>\n"
                              "<base_releases>6\\.1.*</base_releases>\n"
                              "<package>tc-audio 1.0-1</package>\n"
                              "<size>#</size>\n"
                              "<unpacked_size>4096</unpacked_size>\n"
                              "<installed_size>4096</installed_size>\n"
                              "<architecture>all</architecture>\n"
                              "<thin_client>all</thin_client>\n"
                              "</update_data>\n";

/// One finding: its kind, the end of its file's name, and its line or 0.
struct Expected {
    const char *kind;
    QString file;
    int line;
};

QString toText(const QString &kind, const QString &file, int line)
{
    return QStringLiteral("%1:%2 %3").arg(file).arg(line).arg(kind);
}

/// A system with one section and one update, as files below a directory.
class World
{
public:
    explicit World(const QByteArray &deb)
        : m_deb(deb)
    {
        QByteArray text = descriptorText;
        files[definition] = definitionText;
        files[descriptor] = text.replace('#', QByteArray::number(deb.size()));
        files[package] = deb;
    }

    QMap<QString, QByteArray> files;
    /// Run once the files are there.
    std::function<void(const QString &)> then;

    const QByteArray &deb() const { return m_deb; }
    World &edit(const QString &file, const QByteArray &from, const QByteArray &to)
    {
        if (files[file].count(from) != 1) {
            qFatal("'%s' is not in the file once", from.constData());
        }
        files[file].replace(from, to);
        return *this;
    }
    World &cut(const QString &file, const QByteArray &line) { return edit(file, line + '\n', {}); }
    /// The update again, under another file name and with changes.
    World &copy(const QString &name)
    {
        files[QStringLiteral("repo/%1.xml").arg(name)] = files[descriptor];
        files[QStringLiteral("repo/%1.deb").arg(name)] = m_deb;
        return *this;
    }

    void write(const QString &directory) const
    {
        for (auto it = files.cbegin(); it != files.cend(); ++it) {
            QByteArray content = it.value();
            if (it.key().startsWith(QLatin1String("root/"))) {
                content.replace('@', directory.toUtf8());
            }
            FakeRoot::write(directory + QLatin1Char('/') + it.key(), content);
        }
        FakeRoot::write(directory + QStringLiteral("/root/etc/imageid"), "6.1.2\n");
        FakeRoot::write(directory + QStringLiteral("/root/var/lib/dpkg/status"), {});
        if (then) {
            then(directory);
        }
    }

private:
    QByteArray m_deb;
};

using Edit = std::function<void(World &)>;

struct Row {
    const char *name;
    QVector<Expected> expected;
    Edit edit;
};

struct Run {
    int exit = -1;
    QByteArray output;
    QByteArray errors;
    QJsonObject document;
    QStringList findings;

    QString error() const
    {
        return document[QStringLiteral("error")].toObject()[QStringLiteral("text")].toString();
    }
};

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Of all programs that were run so far.
qint64 processorSeconds()
{
    rusage usage = {};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return usage.ru_utime.tv_sec + usage.ru_stime.tv_sec;
}

QByteArray serviceNotes()
{
    return "<service-pack-description><name>SP1</name><title>Pack</title><version>1</version>"
           "<architecture>all</architecture><thin_client>all</thin_client>"
           "</service-pack-description>";
}

/// The section's patterns for service packs that describe themselves.
void makePacks(World &world, const QByteArray &archive)
{
    world.edit(definition, "\\.deb$", "\\.xar$");
    world.cut(definition, "    <descriptor_pattern>\\.xml$</descriptor_pattern>");
    world.files.remove(package);
    world.files.remove(descriptor);
    world.files[QStringLiteral("repo/SP1.xar")] = archive;
}

const QString sums = QStringLiteral("repo/SHA256SUMS");

void requireSums(World &world)
{
    world.edit(definition, "<filter_sps>", "<checksums>required</checksums><filter_sps>");
    RVChecksums list;
    for (const QString &file : {descriptor, package}) {
        list.sums.insert(file.mid(5).toUtf8(),
                         QCryptographicHash::hash(world.files[file], QCryptographicHash::Sha256));
    }
    world.files[sums] = list.toText();
}

} // namespace

Q_DECLARE_METATYPE(Row)

class tst_RVCtlLint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aRowForEachKind();
    void kinds_data();
    void kinds();
    void clean_data();
    void clean();
    void kindsAreListed();
    void linesOfText();
    void filesAlone();
    void demoWorld();
    void exitCodes();
    void unreadableFile();
    void sameRequestsAsTheWindow();
    void sectionsThatShareALocation();
    void moreOfTheSame();
    void hostile_data();
    void hostile();
    void costlyPatternsAreNotCompiled();
    void namesOfIcons();
    void markupOfNotes();

private:
    QVector<Row> rows() const;
    Run run(const QStringList &arguments, const QString &directory = {}) const;
    Run runIn(const World &world, const QTemporaryDir &directory,
              const QStringList &arguments = {}) const;

    const LogFile m_log;
    QByteArray m_deb;
    QByteArray m_otherDeb;
};

void tst_RVCtlLint::initTestCase()
{
    const QTemporaryDir directory;
    const auto make = [&directory](const QString &name, const QString &version) {
        const QString file = directory.filePath(name + QStringLiteral(".deb"));
        const QString error = DpkgRoot::build({name, version}, file);
        if (!error.isEmpty()) {
            qFatal("%s", qUtf8Printable(error));
        }
        return readFile(file);
    };
    m_deb = make(QStringLiteral("tc-audio"), QStringLiteral("1.0-1"));
    m_otherDeb = make(QStringLiteral("tc-video"), QStringLiteral("2.0-1"));
}

Run tst_RVCtlLint::run(const QStringList &arguments, const QString &directory) const
{
    Run result;
    QProcess process;
    if (!directory.isEmpty()) {
        process.setWorkingDirectory(directory);
    }
    process.start(QStringLiteral(RAVELCTL), arguments);
    // Servers of the test answer in the meantime.
    QDeadlineTimer deadline(timeout);
    while (process.state() != QProcess::NotRunning && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    result.exit = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    result.document = QJsonDocument::fromJson(result.output).object();
    for (const QJsonValue &value : result.document[QStringLiteral("findings")].toArray()) {
        const QJsonObject finding = value.toObject();
        result.findings.append(toText(finding[QStringLiteral("kind")].toString(),
                                      finding[QStringLiteral("file")].toString(),
                                      finding[QStringLiteral("line")].toInt()));
    }
    return result;
}

Run tst_RVCtlLint::runIn(const World &world, const QTemporaryDir &directory,
                         const QStringList &arguments) const
{
    world.write(directory.path());
    Run result =
        run(QStringList{QStringLiteral("--root"), directory.filePath(QStringLiteral("root")),
                        QStringLiteral("--json"), QStringLiteral("lint")}
                + arguments,
            directory.path());
    result.findings.replaceInStrings(directory.path() + QLatin1Char('/'), QString());
    return result;
}

QVector<Row> tst_RVCtlLint::rows() const
{
    const QString second = QStringLiteral("root/etc/cvtc-ravel/repositories/20-more.xml");
    const auto replace = [](const QString &file, const QByteArray &from, const QByteArray &to) {
        return Edit([=](World &world) {
            world.edit(file, from, to);
        });
    };
    const auto cut = [](const QString &file, const QByteArray &line) {
        return Edit([=](World &world) {
            world.cut(file, line);
        });
    };
    const auto defined = [](const char *kind, int line) {
        return QVector<Expected>{{kind, definition, line}};
    };
    const auto described = [](const char *kind, int line) {
        return QVector<Expected>{{kind, descriptor, line}};
    };
    const QByteArray nested = QByteArray("<a>").repeated(300) + QByteArray("</a>").repeated(300);

    QVector<Row> rows{
        // Any document
        {"definition that is no XML", defined("xml-not-well-formed", 16),
         replace(definition, "</repository>\n", {})},
        {"descriptor that is no XML", described("xml-not-well-formed", 3),
         replace(descriptor, "<title>Sound</title>", "<title>Sound</titel>")},
        {"descriptor that is empty", described("xml-not-well-formed", 1),
         [](World &world) {
             world.files[descriptor].clear();
         }},
        {"definition too deep", defined("xml-beyond-bounds", 3),
         replace(definition, "<title>Packages", "<title>" + nested)},
        {"descriptor too deep", described("xml-beyond-bounds", 5),
         replace(descriptor, "<p>", "<p>" + nested)},
        {"definition with a misspelt element",
         {{"element-unknown", definition, 5}, {"no-description", definition, 2}},
         [](World &world) {
             world.edit(definition, "<description>", "<descripton>");
             world.edit(definition, "</description>", "</descripton>");
         }},
        {"definition with something beside its repositories", defined("element-unknown", 2),
         replace(definition, "<repository>", "<comment/><repository>")},
        {"descriptor with a misspelt element", described("element-unknown", 8),
         replace(descriptor, "<package>tc-audio 1.0-1</package>", "<packages>x</packages>")},
        {"definition with an element twice", defined("element-repeated", 10),
         replace(definition, "<icon>", "<icon>Info</icon><icon>")},
        {"descriptor with an element twice", described("element-repeated", 7),
         replace(descriptor, "<version>", "<version>0.9</version>\n<version>")},
        {"descriptor with a size twice", described("element-repeated", 11),
         replace(descriptor, "<installed_size>",
                 "<unpacked_size>1</unpacked_size><installed_size>")},
        {"field inside the notes", described("field-in-field", 5),
         replace(descriptor, "<p>", "<title>What is new</title><p>")},
        {"field inside a text of a definition", defined("field-in-field", 5),
         replace(definition, "Single", "<icon>PackageRepository</icon>")},
        {"escaped sign in a pattern", defined("markup-in-value", 14),
         replace(definition, "\\.xml$", "\\.xml$|&amp;")},
        {"comment in a value", described("markup-in-value", 8),
         replace(descriptor, "</package>", "<!-- --></package>")},
        {"line break around a pattern",
         {{"blank-around", definition, 14},
          {"pattern-matches-nothing", definition, 14},
          {"archive-without-descriptor", package, 0}},
         replace(definition, "\\.xml$", "\n\\.xml$\n")},
        {"blank before a word", defined("blank-around", 9),
         replace(definition, ">PickAny", "> PickAny")},
        {"blank around a model",
         {{"blank-around", descriptor, 14}},
         replace(descriptor, "<thin_client>all<",
                 "<thin_client>all</thin_client>\n"
                 "<thin_client>TC-420 <")},
        {"language in the wrong attribute", described("lang-attribute", 3),
         [](World &world) {
             world.edit(descriptor, "<title>Sound", "<title lang=\"en\">Sound");
         }},
        {"language in capitals", described("lang-unknown", 4),
         replace(descriptor, "\"de_CH\"", "\"DE\"")},
        {"language with a small country", defined("lang-unknown", 4),
         replace(definition, "\"de\"", "\"pt_br\"")},
        {"language twice", defined("lang-repeated", 4), replace(definition, "\"de\"", "\"en\"")},
        {"no English text", described("no-default-language", 5),
         replace(descriptor, "\"en\"", "\"fr\"")},
        {"long title", described("text-too-long", 3),
         replace(descriptor, "Sound<", QByteArray(2000, 'x') + '<')},
        {"long notes", described("text-too-long", 5),
         replace(descriptor, "Better", QByteArray("word ").repeated(20000))},
        {"change of direction in a name",
         {{"text-controls", descriptor, 2}, {"package-name-differs", package, 0}},
         replace(descriptor, "tc-audio</name>",
                 "tc-\xe2\x80\xae"
                 "audio</name>")},

        // Definition files
        {"definition file with another suffix",
         {{"file-not-read", definition + QStringLiteral(".bak"), 0}},
         [](World &world) {
             world.files[definition + QStringLiteral(".bak")] = definitionText;
         }},
        {"link that leads nowhere",
         {{"file-unreadable", second, 0}},
         [second](World &world) {
             world.then = [second](const QString &directory) {
                 QVERIFY(QFile::link(QStringLiteral("/nowhere"),
                                     directory + QLatin1Char('/') + second));
             };
         }},
        {"pipe in the directory",
         {{"file-unreadable", second, 0}},
         [second](World &world) {
             world.then = [second](const QString &directory) {
                 QVERIFY(
                     ::mkfifo(QFile::encodeName(directory + QLatin1Char('/') + second).constData(),
                              0600)
                     == 0);
             };
         }},
        {"definition file that is a link",
         {{"file-symlink", definition, 0}},
         [](World &world) {
             world.then = [](const QString &directory) {
                 const QString path = directory + QLatin1Char('/') + definition;
                 QVERIFY(QFile::rename(path, directory + QStringLiteral("/moved")));
                 QVERIFY(QFile::link(directory + QStringLiteral("/moved"), path));
             };
         }},
        {"signed by nobody",
         {{"trust-unclear", definition, 2}},
         replace(definition, "<filter_sps>",
                 "<signed_by/><repository_id>a</repository_id><filter_sps>")},
        {"an id alone",
         {{"trust-unclear", definition, 2}},
         replace(definition, "<filter_sps>", "<repository_id>a</repository_id><filter_sps>")},
        {"a keyring that is not there",
         {{"keyring-unusable", definition, 2}},
         replace(definition, "<filter_sps>",
                 "<signed_by>v.gpg</signed_by><repository_id>a</repository_id><filter_sps>")},
        {"sums without a signature",
         {{"sums-not-signed", definition, 2}},
         [](World &world) {
             requireSums(world);
         }},
        {"sums that are not there",
         {{"sums-not-signed", definition, 2}, {"list-refused", QStringLiteral("repo"), 0}},
         [](World &world) {
             requireSums(world);
             world.files.remove(sums);
         }},
        {"sums that are no list",
         {{"sums-not-signed", definition, 2}, {"list-refused", QStringLiteral("repo"), 0}},
         [](World &world) {
             requireSums(world);
             world.files[sums] = "<html>\n";
         }},
        {"an archive without its sum",
         {{"sums-not-signed", definition, 2},
          {"sum-missing", QStringLiteral("repo/other.deb"), 0},
          {"sum-missing", QStringLiteral("repo/other.xml"), 0}},
         [](World &world) {
             requireSums(world);
             world.copy(QStringLiteral("other"));
         }},
        {"a descriptor that has changed",
         {{"sums-not-signed", definition, 2}, {"sum-differs", descriptor, 0}},
         [](World &world) {
             requireSums(world);
             world.edit(descriptor, "Sound", "Noise");
         }},
        {"an archive that has changed",
         {{"sums-not-signed", definition, 2}, {"sum-differs", package, 0}},
         [](World &world) {
             requireSums(world);
             world.files[package] += ' ';
         }},
        {"a sum without its file",
         {{"sums-not-signed", definition, 2}, {"sum-without-file", sums, 0}},
         [](World &world) {
             requireSums(world);
             world.files[sums] += QByteArray(64, 'a') + "  gone.deb\n";
         }},
        {"definition file that everybody can write",
         {{"file-writable", definition, 0}},
         [](World &world) {
             world.then = [](const QString &directory) {
                 const QString path = directory + QLatin1Char('/') + definition;
                 QVERIFY(::chmod(QFile::encodeName(path).constData(), 0666) == 0);
             };
         }},
        {"definition directory that everybody can write",
         {{"file-writable", QStringLiteral("root/etc/cvtc-ravel/repositories"), 0}},
         [](World &world) {
             world.then = [](const QString &directory) {
                 const QString path =
                     directory + QStringLiteral("/root/etc/cvtc-ravel/repositories");
                 QVERIFY(::chmod(QFile::encodeName(path).constData(), 0777) == 0);
             };
         }},
        {"definition with another root",
         {{"definition-root", second, 1}},
         [second](World &world) {
             world.files[second] = "<repositories/>";
         }},
        {"definition file without a section",
         {{"no-repository", second, 2}},
         [second](World &world) {
             world.files[second] = "<!-- nothing yet -->\n<repository_list/>";
         }},
        {"section inside another element",
         {{"repository-nested", second, 3}},
         [second](World &world) {
             world.files[second] =
                 "<repository_list>\n<group>\n<repository/></group></repository_list>";
         }},
        {"no title", defined("no-title", 2),
         [](World &world) {
             world.cut(definition, "  <title>Packages</title>");
             world.cut(definition, "  <title xml:lang=\"de\">Pakete</title>");
         }},
        {"title without text", defined("no-title", 2),
         [](World &world) {
             world.edit(definition, "<title>Packages</title>", "<title> </title>");
             world.cut(definition, "  <title xml:lang=\"de\">Pakete</title>");
         }},
        {"no description", defined("no-description", 2),
         cut(definition, "  <description>Single programs &amp; drivers</description>")},
        {"no label", defined("no-location-label", 2),
         cut(definition, "  <uri_description>Location</uri_description>")},
        {"no settings key", defined("no-settings-key", 2),
         cut(definition, "  <settings_key>package_uri</settings_key>")},
        {"settings key of another file",
         {{"settings-key-twice", second, 7}},
         [second](World &world) {
             world.files[second] = world.files[definition];
         }},
        {"settings key among the proxies", defined("settings-key-reserved", 7),
         replace(definition, "package_uri", "ProxySettings/server_HTTP")},
        {"settings key that is a number", defined("settings-key-number", 7),
         replace(definition, "package_uri", "3")},
        {"no location", defined("no-location", 2),
         cut(definition, "  <default_uri>file://@/repo</default_uri>")},
        {"location with an impossible port",
         {{"location-invalid", definition, 8}},
         replace(definition, "file://@/repo", "http://host:99999/")},
        {"location without a host",
         {{"location-invalid", definition, 8}},
         replace(definition, "file://@/repo", "http:///repo")},
        {"location with an unknown scheme",
         {{"location-scheme", definition, 8}},
         replace(definition, "file://@/repo", "gopher://host/repo")},
        {"location with a drive letter",
         {{"location-scheme", definition, 8}},
         replace(definition, "file://@/repo", "C:\\repo")},
        {"location with a capital scheme", defined("location-capitals", 8),
         replace(definition, "file://", "FILE://")},
        {"relative location", defined("location-relative", 8),
         replace(definition, "file://@/repo", "repo")},
        {"location with a password",
         {{"location-password", definition, 8}},
         replace(definition, "file://@/repo", "http://me:secret&#64;127.0.0.1:1/repo")},
        {"unknown selector", defined("selector-unknown", 9),
         replace(definition, "PickAny", "Pick-One")},
        {"unknown icon", defined("icon-unknown", 10),
         replace(definition, "PackageRepository", "PackageRepo")},
        {"no icon", defined("no-icon", 2), cut(definition, "  <icon>PackageRepository</icon>")},
        {"neither yes nor no", defined("filter-sps", 11), replace(definition, ">no<", ">maybe<")},
        {"no filter", defined("no-filter", 2),
         [](World &world) {
             world.cut(definition, "  <filter_pattern>");
             world.cut(definition, "    <archive_pattern>\\.deb$</archive_pattern>");
             world.cut(definition, "    <descriptor_pattern>\\.xml$</descriptor_pattern>");
             world.cut(definition, "  </filter_pattern>");
             world.files.remove(package);
         }},
        {"filter without an archive pattern", defined("filter-without-archive", 12),
         [](World &world) {
             world.cut(definition, "    <archive_pattern>\\.deb$</archive_pattern>");
             world.files.remove(package);
         }},
        {"pattern outside a filter", defined("pattern-outside-filter", 11),
         replace(definition, "  <filter_sps>",
                 "<descriptor_pattern>\\.txt$</descriptor_pattern>  <filter_sps>")},
        {"two archive patterns in one filter", defined("element-repeated", 13),
         replace(definition, "<archive_pattern>",
                 "<archive_pattern>\\.rpm$</archive_pattern><archive_pattern>")},
        {"file pattern in place of an expression",
         {{"pattern-invalid", definition, 13},
          {"pattern-matches-nothing", definition, 13},
          {"descriptor-without-archive", descriptor, 0},
          {"archive-not-selected", package, 0}},
         replace(definition, "\\.deb$", "*.deb")},
        {"pattern that takes very long", defined("pattern-costly", 13),
         replace(definition, "\\.deb$", "(((a{1,30}){1,30}){1,30}){1,30}")},
        {"pattern that matches nothing", defined("pattern-matches-nothing", 15),
         replace(definition, "  </filter_pattern>",
                 "  </filter_pattern><filter_pattern><archive_pattern>\\.xar$</archive_pattern>"
                 "</filter_pattern>")},

        // Descriptors
        {"descriptor with another root", described("descriptor-root", 1),
         [](World &world) {
             world.edit(descriptor, "<update_data>", "<update-data>");
             world.edit(descriptor, "</update_data>", "</update-data>");
         }},
        {"table without a service pack", described("no-subdocument", 1),
         [](World &world) {
             world.files[descriptor] = "<xar><toc/></xar>";
         }},
        {"service pack that says nothing",
         {{"no-subdocument", QStringLiteral("repo/SP1.xar"), 0}},
         [](World &world) {
             XarWriter writer;
             writer.addFile("file", "content");
             makePacks(world, writer.archive());
         }},
        {"no model", described("descriptor-no-thin-client", 1),
         cut(descriptor, "<thin_client>all</thin_client>")},
        {"no architecture", described("descriptor-no-architecture", 1),
         cut(descriptor, "<architecture>all</architecture>")},
        {"no name", described("descriptor-no-name", 1), cut(descriptor, "<name>tc-audio</name>")},
        {"name without text", described("descriptor-no-name", 2),
         replace(descriptor, "<name>tc-audio</name>", "<name/>")},
        {"name in two languages", described("name-per-language", 3),
         replace(descriptor, "</name>\n", "</name>\n<name xml:lang=\"de\">tc-ton</name>\n")},
        {"no title of an update", described("descriptor-no-title", 1),
         [](World &world) {
             world.cut(descriptor, "<title>Sound</title>");
             world.cut(descriptor, "<title xml:lang=\"de_CH\">Ton</title>");
         }},
        {"no version", described("descriptor-no-version", 1),
         cut(descriptor, "<version>1.0-1</version>")},
        {"version with other signs",
         {{"version-odd", descriptor, 6}, {"package-version-differs", package, 0}},
         replace(descriptor, "1.0-1</version>", "v1,0</version>")},
        {"version with a time stamp",
         {{"version-number", descriptor, 6}, {"package-version-differs", package, 0}},
         replace(descriptor, "1.0-1</version>", "20261121123000</version>")},
        {"size with a unit", described("size-not-number", 10),
         replace(descriptor, ">4096</unpacked_size>", ">4 KiB</unpacked_size>")},
        {"size with a blank", described("size-not-number", 11),
         replace(descriptor, ">4096</installed_size>", "> 4096</installed_size>")},
        {"negative size", described("size-negative", 11),
         replace(descriptor, ">4096</installed_size>", ">-1</installed_size>")},
        {"no size", described("size-missing", 1),
         [](World &world) {
             world.cut(descriptor, "<size>" + QByteArray::number(world.deb().size()) + "</size>");
         }},
        {"base release that cannot be compiled",
         {{"other-base-release", descriptor, 0}, {"base-release-invalid", descriptor, 7}},
         replace(descriptor, "6\\.1.*", "6.1(")},
        {"base release that is refused",
         {{"other-base-release", descriptor, 0}, {"base-release-costly", descriptor, 7}},
         replace(descriptor, "6\\.1.*", "((6{1,99}){1,99}){1,99}")},
        {"base release that is a file pattern",
         {{"other-base-release", descriptor, 0}, {"base-release-glob", descriptor, 7}},
         replace(descriptor, "6\\.1.*", "6.1*")},
        {"all in capitals",
         {{"other-base-release", descriptor, 0}, {"all-misspelt", descriptor, 7}},
         replace(descriptor, "6\\.1.*", "ALL")},
        {"any in place of all",
         {{"other-model", descriptor, 0}, {"all-misspelt", descriptor, 13}},
         replace(descriptor, "<thin_client>all", "<thin_client>any")},
        {"picture in the notes", described("notes-markup", 5),
         replace(descriptor, "<p>", "<p><img src='x'/>")},
        {"quoted script in the notes", described("notes-markup", 5),
         replace(descriptor, "<p>", "<p>&lt;script>x&lt;/script>")},
        {"package that is none",
         {{"archive-unreadable", package, 0}},
         [](World &world) {
             world.files[package] = QByteArray(world.deb().size(), 'x');
         }},
        {"service pack that is none",
         {{"archive-unreadable", QStringLiteral("repo/SP1.xar"), 0}},
         [](World &world) {
             makePacks(world, "no archive");
         }},

        // Repositories
        {"empty repository",
         {{"repository-empty", QStringLiteral("repo"), 0}},
         [](World &world) {
             world.files.remove(package);
             world.files.remove(descriptor);
             world.files[QStringLiteral("repo/directory/file")] = "x";
         }},
        {"archive without a descriptor",
         {{"archive-without-descriptor", QStringLiteral("repo/other.deb"), 0}},
         [](World &world) {
             world.files[QStringLiteral("repo/other.deb")] = world.deb();
         }},
        {"descriptor without an archive",
         {{"descriptor-without-archive", QStringLiteral("repo/other.xml"), 0}},
         [](World &world) {
             world.files[QStringLiteral("repo/other.xml")] = world.files[descriptor];
         }},
        {"archive that no filter picks",
         {{"archive-not-selected", QStringLiteral("repo/other.xar"), 0}},
         [](World &world) {
             world.files[QStringLiteral("repo/other.xar")] = "x";
         }},
        {"archive that nothing installs",
         {{"archive-no-installer", QStringLiteral("repo/tc-audio_1.0-1_all.rpm"), 0}},
         [](World &world) {
             world.edit(definition, "\\.deb$", "\\.rpm$");
             world.files[QStringLiteral("repo/tc-audio_1.0-1_all.rpm")] = world.files.take(package);
         }},
        {"descriptor that nothing reads",
         {{"descriptor-format", QStringLiteral("repo/tc-audio_1.0-1_all.json"), 0}},
         [](World &world) {
             world.edit(definition, "\\.xml$", "\\.json$");
             world.files[QStringLiteral("repo/tc-audio_1.0-1_all.json")] =
                 world.files.take(descriptor);
         }},
        {"package in capitals",
         {{"deb-not-installed", QStringLiteral("repo/tc-audio_1.0-1_all.DEB"), 0}},
         [](World &world) {
             world.edit(definition, "\\.deb$", "\\.DEB$");
             world.files[QStringLiteral("repo/tc-audio_1.0-1_all.DEB")] = world.files.take(package);
         }},
        {"two descriptors of one archive",
         {{"descriptor-ambiguous", QStringLiteral("repo/tc-audio_1.0-1_all.xml5"), 0}},
         [](World &world) {
             world.edit(definition, "\\.xml$", "\\.xml5?$");
             world.files[QStringLiteral("repo/tc-audio_1.0-1_all.xml5")] = world.files[descriptor];
         }},
        {"one descriptor of two archives",
         {{"descriptor-shared", descriptor, 0},
          {"deb-not-installed", QStringLiteral("repo/tc-audio_1.0-1_all.DEB"), 0}},
         [](World &world) {
             world.edit(definition, "\\.deb$", "\\.(deb|DEB)$");
             world.files[QStringLiteral("repo/tc-audio_1.0-1_all.DEB")] = world.deb();
         }},
        {"archive of two filters",
         {{"listed-twice", package, 0}},
         replace(definition, "  </filter_pattern>",
                 "  </filter_pattern><filter_pattern><archive_pattern>_all\\.deb$</archive_pattern>"
                 "<descriptor_pattern>_all\\.xml$</descriptor_pattern></filter_pattern>")},
        {"update twice",
         {{"update-twice", QStringLiteral("repo/tc-audio_again.xml"), 0}},
         [](World &world) {
             world.copy(QStringLiteral("tc-audio_again"));
         }},
        {"versions that contradict each other",
         {{"versions-incomparable", QStringLiteral("repo/tc-audio_x.xml"), 0},
          {"package-version-differs", package, 0},
          {"package-version-differs", QStringLiteral("repo/tc-audio_x.deb"), 0}},
         [](World &world) {
             world.copy(QStringLiteral("tc-audio_x"))
                 .edit(QStringLiteral("repo/tc-audio_x.xml"), "<version>1.0-1", "<version>1.01")
                 .edit(descriptor, "<version>1.0-1", "<version>1.1");
         }},
        {"archives of several installers",
         {{"installers-mixed", QStringLiteral("repo"), 0}},
         [](World &world) {
             XarWriter writer;
             writer.addSubdocument(serviceNotes());
             world.files[QStringLiteral("repo/SP1.xar")] = writer.archive();
             world.edit(definition, "  </filter_pattern>",
                        "  </filter_pattern><filter_pattern>"
                        "<archive_pattern>\\.xar$</archive_pattern></filter_pattern>");
         }},
        {"images of which several can be chosen",
         {{"image-not-pick-one", QStringLiteral("repo"), 0}},
         [](World &world) {
             world.edit(definition, "\\.deb$", "\\.dd\\.gz$");
             world.files[QStringLiteral("repo/tc-audio_1.0-1_all.dd.gz")] =
                 world.files.take(package);
         }},
        {"size of another archive",
         {{"size-differs", package, 0}},
         [](World &world) {
             world.edit(descriptor, "<size>", "<size>9");
         }},
        {"package of another name",
         {{"package-name-differs", package, 0}},
         replace(descriptor, "tc-audio</name>", "tc-sound</name>")},
        {"package of another version",
         {{"package-version-differs", package, 0}},
         replace(descriptor, "1.0-1</version>", "1.0-2</version>")},
        {"other base release",
         {{"other-base-release", descriptor, 0}},
         replace(descriptor, "6\\.1.*", "7\\.0.*")},
        {"other architecture",
         {{"other-architecture", descriptor, 0}},
         replace(descriptor, "<architecture>all", "<architecture>sparc64")},
        {"other model",
         {{"other-model", descriptor, 0}},
         replace(descriptor, "<thin_client>all", "<thin_client>TC-9000")},
    };
    return rows;
}

/// Those that a row with one local section cannot show have a test of their own.
void tst_RVCtlLint::aRowForEachKind()
{
    QSet<QString> shown{QStringLiteral("descriptor-not-fetched"),
                        QStringLiteral("file-names-collide"), QStringLiteral("more-of-the-same")};
    for (const Row &row : rows()) {
        for (const Expected &expected : row.expected) {
            shown.insert(QLatin1String(expected.kind));
        }
    }
    QSet<QString> ids;
    int index = 0;
    for (const RVLintRule &rule : RVLintRule::all()) {
        QCOMPARE(static_cast<int>(rule.kind), index++);
        QVERIFY2(!ids.contains(QLatin1String(rule.id)), rule.id);
        QVERIFY2(shown.contains(QLatin1String(rule.id)), rule.id);
        ids.insert(QLatin1String(rule.id));
    }
    QCOMPARE(shown, ids);
    QCOMPARE(index, static_cast<int>(RVLintKind::MoreOfTheSame) + 1);
    QVERIFY(ids.size() >= 25);
}

void tst_RVCtlLint::kinds_data()
{
    QTest::addColumn<Row>("row");
    for (const Row &row : rows()) {
        QTest::newRow(row.name) << row;
    }
}

// The corrected input is the world as it is: clean() shows that nothing is found in it.
void tst_RVCtlLint::kinds()
{
    QFETCH(Row, row);
    World world(m_deb);
    row.edit(world);
    const QTemporaryDir directory;
    Run result = runIn(world, directory);
    QStringList expected;
    for (const Expected &one : qAsConst(row.expected)) {
        expected.append(toText(QLatin1String(one.kind), one.file, one.line));
    }
    expected.sort();
    result.findings.sort();
    QCOMPARE(result.findings, expected);
    QVERIFY2(!result.output.contains("secret"), "a password is shown");
}

void tst_RVCtlLint::clean_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");

    QTest::newRow("as it is") << definition << QByteArray("PickAny") << QByteArray("PickAny");
    QTest::newRow("words in another case")
        << definition << QByteArray("PackageRepository") << QByteArray("packagerepository");
    QTest::newRow("one choice") << definition << QByteArray("PickAny") << QByteArray("pickone");
    QTest::newRow("no selector") << definition
                                 << QByteArray("  <selector_type>PickAny</selector_type>\n")
                                 << QByteArray();
    QTest::newRow("yes as a number") << definition << QByteArray(">no<") << QByteArray(">1<");
    QTest::newRow("escaped sign in a text")
        << descriptor << QByteArray("Sound<") << QByteArray("Sound &amp; vision<");
    QTest::newRow("notes in CDATA")
        << descriptor << QByteArray("<p>Better <b>sound</b>.</p>")
        << QByteArray("<![CDATA[<h3>New</h3><table><tr><td>a</td></tr></table>]]>");
    QTest::newRow("notes with more than a line")
        << descriptor << QByteArray("<p>Better") << QByteArray("\n  <p>Better &lt; worse");
    QTest::newRow("a whole page as notes")
        << descriptor << QByteArray("<p>Better <b>sound</b>.</p>")
        << QByteArray("<html><body><p>Better</p><br/></body></html>");
    QTest::newRow("Arabic with joiners")
        << descriptor << QByteArray("Ton<") << QByteArray("\xd9\x85\xdb\x8c\xe2\x80\x8c\xd8\xae<");
    QTest::newRow("several base releases")
        << descriptor << QByteArray("<base_releases>6\\.1.*")
        << QByteArray("<base_releases>5[.]9[0-9]*</base_releases>\n"
                      "<base_releases>6\\.[0-9]*(\\.\\d*)?|all");
    QTest::newRow("several models") << descriptor << QByteArray("<thin_client>all")
                                    << QByteArray("<thin_client>TC-1</thin_client>\n"
                                                  "<thin_client>all");
    QTest::newRow("size with a sign")
        << descriptor << QByteArray(">4096</unpacked") << QByteArray(">+4096</unpacked");
    QTest::newRow("a comment") << descriptor << QByteArray("<name>")
                               << QByteArray("<!-- <name> -->\n<name>");
    QTest::newRow("a document type")
        << descriptor << QByteArray("<update_data>")
        << QByteArray("<?xml version='1.0' encoding='UTF-8'?>\n"
                      "<!DOCTYPE update_data [<!ENTITY x 'tc'>]><update_data>");
}

void tst_RVCtlLint::clean()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    World world(m_deb);
    world.edit(file, from, to);
    const QTemporaryDir directory;
    const Run result = runIn(world, directory);
    QCOMPARE(result.findings, QStringList());
    QCOMPARE(result.exit, 0);
}

void tst_RVCtlLint::kindsAreListed()
{
    const Run text = run({QStringLiteral("lint"), QStringLiteral("--kinds")});
    QCOMPARE(text.exit, 0);
    const Run json =
        run({QStringLiteral("--json"), QStringLiteral("lint"), QStringLiteral("--kinds")});
    const QJsonArray kinds = json.document[QStringLiteral("kinds")].toArray();
    QCOMPARE(kinds.size(), RVLintRule::all().size());
    for (int i = 0; i < kinds.size(); ++i) {
        const RVLintRule &rule = RVLintRule::all().at(i);
        const QJsonObject kind = kinds.at(i).toObject();
        QCOMPARE(kind[QStringLiteral("kind")].toString(), QLatin1String(rule.id));
        QCOMPARE(kind[QStringLiteral("severity")].toString(), RVLintRule::word(rule.severity));
        QVERIFY(!kind[QStringLiteral("message")].toString().isEmpty());
        QVERIFY2(QByteArray(rule.effect).endsWith('.'), rule.id);
        QVERIFY2(text.output.contains(QByteArray(rule.id) + " ("), rule.id);
    }
}

void tst_RVCtlLint::linesOfText()
{
    World world(m_deb);
    world
        .edit(descriptor, "1.0-1</version>",
              "1.0-\xc2\x9b"
              "31m</version>")
        .cut(descriptor, "<thin_client>all</thin_client>")
        .edit(definition, "PickAny", "Any");
    const QTemporaryDir directory;
    world.write(directory.path());
    const Run result = run({QStringLiteral("--root"), directory.filePath(QStringLiteral("root")),
                            QStringLiteral("lint")});
    QList<QByteArray> lines = result.output.split('\n');
    QVERIFY(lines.takeLast().isEmpty());
    QVERIFY(lines.size() >= 4);
    QList<QByteArray> sorted = lines;
    std::sort(sorted.begin(), sorted.end());
    static const QRegularExpression form(
        QStringLiteral("\\A/[^:]+(:[0-9]+)?: (error|warning|notice): [^\\[]+ \\[[a-z-]+\\]\\z"));
    for (const QByteArray &line : qAsConst(lines)) {
        QVERIFY2(form.match(QString::fromUtf8(line)).hasMatch(), line.constData());
        QVERIFY2(!line.contains("\xc2\x9b"), line.constData());
    }
    QVERIFY(result.output.contains("20\n") || lines.first().contains("10-packages.xml")
            || lines.first().contains("repo/"));
    QVERIFY(result.output.contains("tc-audio_1.0-1_all.xml:1: error: There is no thin_client "
                                   "[descriptor-no-thin-client]\n"));
    QVERIFY(result.output.contains("10-packages.xml:9: warning: "));
    QVERIFY2(result.errors.contains("Defects found; errors: "), result.errors.constData());
    QCOMPARE(result.exit, 1);
}

void tst_RVCtlLint::filesAlone()
{
    World world(m_deb);
    world.files[QStringLiteral("pack.xml")] =
        "<xar><toc/><subdoc>\n<sp-attrs><unpacked_size>7</unpacked_size></sp-attrs>\n"
        + serviceNotes() + "</subdoc></xar>";
    world.files[QStringLiteral("bad.xml")] = "<xar><subdoc>\n<service-pack-description>\n<name>SP1"
                                             "</name><title>x</title><version>1</version></"
                                             "service-pack-description></subdoc></xar>";
    world.files[QStringLiteral("other.xml")] = "\n<something/>";
    world.files[QStringLiteral("plain.deb")] = m_deb;
    XarWriter writer;
    writer.addSubdocument(serviceNotes());
    world.files[QStringLiteral("good.xar")] = writer.archive();
    XarWriter other;
    other.addSubdocument(serviceNotes().replace("<name>SP1", "<name>SP1<b/>"));
    world.files[QStringLiteral("bad.xar")] = other.archive();
    const QTemporaryDir directory;
    const auto lint = [&](const QString &file) {
        return runIn(world, directory, {directory.filePath(file)});
    };
    for (const QString &file : {definition, descriptor, QStringLiteral("pack.xml"),
                                QStringLiteral("plain.deb"), QStringLiteral("good.xar")}) {
        const Run result = lint(file);
        QCOMPARE(result.findings, QStringList());
        QCOMPARE(result.exit, 0);
        QVERIFY(result.document[QStringLiteral("repositories")].toArray().isEmpty());
    }
    QCOMPARE(lint(QStringLiteral("bad.xml")).findings,
             (QStringList{QStringLiteral("bad.xml:1 descriptor-no-thin-client"),
                          QStringLiteral("bad.xml:1 descriptor-no-architecture")}));
    QCOMPARE(lint(QStringLiteral("other.xml")).findings,
             QStringList{QStringLiteral("other.xml:2 descriptor-root")});
    QCOMPARE(lint(QStringLiteral("bad.xar")).findings,
             QStringList{QStringLiteral("bad.xar:0 markup-in-value")});
    // Also where there is no system at all.
    const Run alone =
        run({QStringLiteral("--definitions"), directory.path(), QStringLiteral("--json"),
             QStringLiteral("lint"), directory.filePath(QStringLiteral("bad.xml"))});
    QCOMPARE(alone.findings.size(), 2);
    QCOMPARE(alone.exit, 1);
}

void tst_RVCtlLint::demoWorld()
{
    const QTemporaryDir directory;
    QCOMPARE(QProcess::execute(QStringLiteral("cp"),
                               {QStringLiteral("-a"), QStringLiteral(RAVEL_DEMO_WORLD "/root"),
                                directory.path()}),
             0);
    const QString root = directory.filePath(QStringLiteral("root"));
    Run result =
        run({QStringLiteral("--root"), root, QStringLiteral("--json"), QStringLiteral("lint")});
    result.findings.replaceInStrings(QStringLiteral(RAVEL_DEMO_WORLD "/repos/"), QString());
    QCOMPARE(result.findings,
             (QStringList{
                 QStringLiteral("applications/tc-emulator_0.9-1_i386.deb:0 other-architecture"),
                 QStringLiteral("images/tc-system-7.0.0.xml:0 other-model"),
                 QStringLiteral("packages/tc-display_1.3-1_all.xml:0 other-architecture"),
                 QStringLiteral("packages/tc-scanner_0.5-1_all.xml:0 other-model"),
                 QStringLiteral("packages/tc-session_3.1-1_all.xml:0 other-base-release"),
                 QStringLiteral("packages/tc-viewer_2.0-1_all.xml:2 descriptor-no-thin-client"),
                 QStringLiteral("packages/tc-viewer_2.2-1_all.deb:0 archive-without-descriptor"),
                 QStringLiteral("service-packs/SP-6.0.9-7.xml:0 other-base-release"),
                 QStringLiteral("service-packs/SP-7.0.0-1.sp.xar:0 other-base-release"),
             }));
    QCOMPARE(result.exit, 1);
    QCOMPARE(result.document[QStringLiteral("errors")].toInt(), 1);
    QCOMPARE(result.document[QStringLiteral("warnings")].toInt(), 1);
    QCOMPARE(result.document[QStringLiteral("notices")].toInt(), 7);

    const QString definitions = root + QStringLiteral("/etc/cvtc-ravel/repositories");
    QStringList arguments{QStringLiteral("--json"), QStringLiteral("lint")};
    for (const QString &name : QDir(definitions).entryList(QDir::Files)) {
        arguments.append(definitions + QLatin1Char('/') + name);
    }
    QCOMPARE(arguments.size(), 6);
    const Run alone = run(arguments);
    QCOMPARE(alone.findings, QStringList());
    QCOMPARE(alone.exit, 0);
}

void tst_RVCtlLint::exitCodes()
{
    const QTemporaryDir directory;
    World world(m_deb);
    world.edit(descriptor, "<architecture>all", "<architecture>sparc64");
    QCOMPARE(runIn(world, directory).exit, 0);
    QCOMPARE(runIn(world, directory, {QStringLiteral("0")}).findings.size(), 1);
    QCOMPARE(runIn(world, directory, {QStringLiteral("package_uri")}).exit, 0);
    world.edit(definition, "PickAny", "Any");
    QCOMPARE(runIn(world, directory).exit, 1);
    QCOMPARE(runIn(world, directory, {QStringLiteral("0")}).findings.size(), 2);
    for (const QString &argument :
         {QStringLiteral("1"), QStringLiteral("nothing"), QStringLiteral("repo"), QString()}) {
        const Run result = runIn(world, directory, {argument});
        QCOMPARE(result.exit, 2);
        QVERIFY(result.findings.isEmpty());
    }
    world.edit(definition, "file://@/repo", "file:///nowhere");
    Run result = runIn(world, directory);
    QCOMPARE(result.exit, 3);
    QCOMPARE(result.findings.size(), 1);
    QCOMPARE(result.document[QStringLiteral("repositories")]
                 .toArray()
                 .at(0)[QStringLiteral("error")][QStringLiteral("code")]
                 .toInt(),
             203);
    QCOMPARE(runIn(world, directory, {QStringLiteral("0"), descriptor}).exit, 8);
    world.files.remove(definition);
    result = runIn(world, QTemporaryDir());
    QCOMPARE(result.exit, 1);
    QVERIFY(result.error().contains(QLatin1String("definition directory")));
}

void tst_RVCtlLint::unreadableFile()
{
    const QTemporaryDir directory;
    const World world(m_deb);
    world.write(directory.path());
    QVERIFY(QFile::setPermissions(directory.filePath(definition), {}));
    class Program : public QProcess
    {
        void setupChildProcess() override { obeyFilePermissionsAfterExec(); }
    } program;
    program.start(QStringLiteral(RAVELCTL),
                  {QStringLiteral("--root"), directory.filePath(QStringLiteral("root")),
                   QStringLiteral("--json"), QStringLiteral("lint")});
    QVERIFY(program.waitForFinished(timeout));
    const QJsonArray findings = QJsonDocument::fromJson(program.readAllStandardOutput())
                                    .object()[QStringLiteral("findings")]
                                    .toArray();
    QCOMPARE(findings.size(), 1);
    QCOMPARE(findings.at(0)[QStringLiteral("kind")].toString(), QStringLiteral("file-unreadable"));
}

void tst_RVCtlLint::sameRequestsAsTheWindow()
{
    HttpServer server;
    World world(m_deb);
    const auto page = [](const QStringList &names) {
        QByteArray html =
            "<html><head><title>Index of /repo</title></head><body><h1>Index of /repo</h1><pre>";
        for (const QString &name : names) {
            html += "<a href=\"" + name.toUtf8() + "\">" + name.toUtf8() + "</a>\n";
        }
        return html + "</pre></body></html>";
    };
    server.serve(QStringLiteral("/repo/"),
                 page({QStringLiteral("a.deb"), QStringLiteral("a.xml"), QStringLiteral("b.deb"),
                       QStringLiteral("b.xml"), QStringLiteral("c.deb"), QStringLiteral("d.xml")}),
                 200, "Content-Type: text/html\r\n");
    world.cut(descriptor, "<thin_client>all</thin_client>");
    server.serve(QStringLiteral("/repo/a.xml"), world.files[descriptor]);
    world.edit(definition, "file://@/repo", server.url(QStringLiteral("/repo/")).toEncoded());
    const QTemporaryDir directory;
    Run result = runIn(world, directory);
    const QString base = server.url(QStringLiteral("/repo/")).toString();
    result.findings.replaceInStrings(base, QString());
    QCOMPARE(result.findings,
             (QStringList{QStringLiteral("a.xml:1 descriptor-no-thin-client"),
                          QStringLiteral("b.xml:0 descriptor-not-fetched"),
                          QStringLiteral("c.deb:0 archive-without-descriptor"),
                          QStringLiteral("d.xml:0 descriptor-without-archive")}));
    QStringList requests;
    for (const QByteArray &head : server.requests()) {
        requests.append(QString::fromLatin1(head.left(head.indexOf(" HTTP"))));
    }
    requests.sort();
    QCOMPARE(requests,
             (QStringList{QStringLiteral("GET /repo/"), QStringLiteral("GET /repo/a.xml"),
                          QStringLiteral("GET /repo/b.xml")}));

    // Two files that would be downloaded into one.
    server.serve(QStringLiteral("/repo/"),
                 page({QStringLiteral("x/a.deb"), QStringLiteral("y/a.deb")}), 200,
                 "Content-Type: text/html\r\n");
    server.serve(QStringLiteral("/repo/x/a.deb"), m_deb);
    server.serve(QStringLiteral("/repo/y/a.deb"), m_otherDeb);
    world.cut(definition, "    <descriptor_pattern>\\.xml$</descriptor_pattern>");
    result = runIn(world, directory);
    result.findings.replaceInStrings(base, QString());
    QCOMPARE(result.findings, QStringList{QStringLiteral("x/a.deb:0 file-names-collide")});
}

void tst_RVCtlLint::sectionsThatShareALocation()
{
    World world(m_deb);
    XarWriter writer;
    writer.addFile("file", "content");
    const QByteArray archive = writer.archive();
    const QString second = QStringLiteral("root/etc/cvtc-ravel/repositories/20-packs.xml");
    world.files[second] = world.files[definition];
    world.edit(second, "package_uri", "sp_uri").edit(second, "\\.deb$", "\\.xar$");
    const QString name = QStringLiteral("repo/SP1");
    world.files[name + QStringLiteral(".xar")] = archive;
    world.files[name + QStringLiteral(".xml")] =
        QByteArray(descriptorText)
            .replace('#', QByteArray::number(archive.size()))
            .replace("<name>tc-audio", "<name>SP1");
    const QTemporaryDir directory;
    QCOMPARE(runIn(world, directory).findings, QStringList());
    QCOMPARE(runIn(world, directory, {QStringLiteral("sp_uri")}).findings, QStringList());
}

void tst_RVCtlLint::moreOfTheSame()
{
    World world(m_deb);
    world.edit(descriptor, "<package>", QByteArray("<nothing/>\n").repeated(5000) + "<package>");
    const QTemporaryDir directory;
    const Run result = runIn(world, directory);
    QCOMPARE(result.findings.filter(QStringLiteral("element-unknown")).size(),
             RVLintReport::mostOfOneKind);
    QCOMPARE(result.findings.filter(QStringLiteral("more-of-the-same")).size(), 1);
    QCOMPARE(result.findings.size(), RVLintReport::mostOfOneKind + 1);
}

void tst_RVCtlLint::hostile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("kind");

    QByteArray noise(3 * 1024 * 1024, Qt::Uninitialized);
    quint32 state = 1;
    for (char &byte : noise) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24);
    }
    const QString xml = QStringLiteral("x.xml");
    const QString beyond = QStringLiteral("xml-beyond-bounds");
    const QString broken = QStringLiteral("xml-not-well-formed");
    const QString archive = QStringLiteral("archive-unreadable");
    QTest::newRow("noise as a document") << xml << noise << broken;
    QTest::newRow("noise as a package") << QStringLiteral("x.deb") << noise << archive;
    QTest::newRow("noise as a service pack") << QStringLiteral("x.xar") << noise << archive;
    QTest::newRow("nothing as a package") << QStringLiteral("x.deb") << QByteArray() << archive;
    QTest::newRow("zeros") << xml << QByteArray(1000, '\0') << broken;
    QTest::newRow("a huge document")
        << xml << "<update_data>" + QByteArray(XmlCheck::maxBytes, ' ') + "</update_data>"
        << beyond;
    QTest::newRow("a deep document") << xml << QByteArray("<a>").repeated(2'000'000) << beyond;
    QTest::newRow("many elements")
        << xml << "<update_data>" + QByteArray("<a/>").repeated(1'000'000) + "</update_data>"
        << beyond;
    QTest::newRow("many attributes")
        << xml << "<a" + QByteArray(" b='c'").repeated(1000) + "/>" << beyond;
    QTest::newRow("many equals signs")
        << xml << "<a>" + QByteArray("=").repeated(300'000) + "</a>" << beyond;
    QByteArray entities = "<!DOCTYPE a [<!ENTITY e '" + QByteArray(10000, 'x') + "'>]><a>";
    QTest::newRow("entities that grow")
        << xml << entities + QByteArray("&e;").repeated(1000) + "</a>" << beyond;
    entities = "<!DOCTYPE a [";
    for (int i = 0; i < 2000; ++i) {
        entities += "<!ENTITY e" + QByteArray::number(i) + " 'x'>";
    }
    QTest::newRow("many entities") << xml << entities + "]><a/>" << beyond;
    QTest::newRow("as many elements as are taken")
        << xml << "<update_data>" + QByteArray("<titel/>").repeated(240'000) + "</update_data>"
        << QStringLiteral("element-unknown");
    QTest::newRow("as many texts as are taken")
        << xml
        << "<update_data>" + QByteArray("<name>x</name>").repeated(120'000) + "</update_data>"
        << QStringLiteral("lang-repeated");
    QTest::newRow("fields within one another")
        << xml
        << "<update_data>" + QByteArray("<notes>").repeated(200) + QByteArray(1'000'000, 'x')
            + QByteArray("</notes>").repeated(200) + "</update_data>"
        << QStringLiteral("field-in-field");
    QTest::newRow("long fields within one another") << xml
                                                    << "<update_data>"
            + QByteArray("<base_releases>").repeated(200) + QByteArray(15'000'000, 'x')
            + QByteArray("</base_releases>").repeated(200) + "</update_data>"
                                                    << QStringLiteral("field-in-field");
    QTest::newRow("a costly base release")
        << xml
        << QByteArray("<update_data><base_releases>(((a{1,99}){1,99}){1,99}){1,99}</base_releases>"
                      "</update_data>")
        << QStringLiteral("base-release-costly");
    QTest::newRow("a long version")
        << xml
        << "<update_data><version>1" + QByteArray(10'000'000, '0') + "</version></update_data>"
        << QStringLiteral("version-number");
    QTest::newRow("long notes with much markup") << xml
                                                 << "<update_data><notes>"
            + QByteArray("&lt;x&lt;y").repeated(1'000'000) + "</notes></update_data>"
                                                 << QStringLiteral("notes-markup");
}

void tst_RVCtlLint::hostile()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, kind);
    const QTemporaryDir directory;
    FakeRoot::write(directory.filePath(name), content);
    const qint64 before = processorSeconds();
    const Run result =
        run({QStringLiteral("--json"), QStringLiteral("lint"), directory.filePath(name)});
    const qint64 used = processorSeconds() - before;
    QVERIFY2(used < quick, qUtf8Printable(QString::number(used)));
    QCOMPARE(result.exit, 1);
    QVERIFY2(!result.findings.filter(kind).isEmpty(),
             qUtf8Printable(result.findings.join(QLatin1Char('\n'))));
}

void tst_RVCtlLint::costlyPatternsAreNotCompiled()
{
    World world(m_deb);
    world.edit(definition, "\\.deb$", "((((a{1,99}){1,99}){1,99}){1,99}){1,99}");
    const QTemporaryDir directory;
    const qint64 before = processorSeconds();
    for (const QStringList &arguments : {QStringList(), QStringList(QStringLiteral("0"))}) {
        const Run result = runIn(world, directory, arguments);
        QCOMPARE(result.exit, 1);
        QVERIFY(result.error().contains(QLatin1String("takes too long")));
    }
    QVERIFY(processorSeconds() - before < quick);
    // A pipe or a directory is not read.
    const QString pipe = directory.filePath(QStringLiteral("pipe.xml"));
    QVERIFY(::mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0);
    QCOMPARE(runIn(world, directory, {pipe}).exit, 2);
    QCOMPARE(runIn(world, directory, {directory.path()}).exit, 2);
}

void tst_RVCtlLint::namesOfIcons()
{
    const RVStyle style;
    for (const QString &name : RVLintDefinition::iconNames()) {
        QVERIFY2(!style.StdIcon(name).isNull(), qUtf8Printable(name));
    }
    QCOMPARE(RVLintDefinition::iconNames().size(),
             static_cast<int>(RVStyle::PackageRepository) + 1);
}

void tst_RVCtlLint::markupOfNotes()
{
    const QStringList shown =
        QStringLiteral("b strong i em cite var u s big small tt code kbd samp font sub sup p div "
                       "center address blockquote pre h1 h2 h3 h4 h5 h6 ul ol dl li dt dd table br "
                       "hr")
            .split(QLatin1Char(' '));
    const QStringList dropped =
        QStringLiteral("a img script style iframe object video form input svg meta link span nav")
            .split(QLatin1Char(' '));
    for (const QString &tag : shown + dropped) {
        const QString html = QStringLiteral("<%1>x</%1>").arg(tag);
        QVERIFY2(NotesDocument::sanitised(html).contains(QLatin1Char('<') + tag)
                     != RVLintDescriptor::isDropped(tag),
                 qUtf8Printable(tag));
    }
    const QString table =
        NotesDocument::sanitised(QStringLiteral("<table><tr><th>a</th><td>b</td></tr></table>"));
    for (const QString &tag : {QStringLiteral("tr"), QStringLiteral("th"), QStringLiteral("td")}) {
        QVERIFY(table.contains(QLatin1Char('<') + tag));
        QVERIFY(!RVLintDescriptor::isDropped(tag));
    }
}

QTEST_MAIN(tst_RVCtlLint)
#include "tst_RVCtlLint.moc"
