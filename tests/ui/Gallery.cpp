// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/ui/Gallery.h"

#include "tests/support/HttpServer.h"
#include "ui/BusyDialog.h"
#include "ui/CertDialog.h"
#include "ui/ItemDetailsDialog.h"
#include "ui/RVControlFrame.h"
#include "ui/RVErrorDialog.h"
#include "ui/RVMainPage.h"
#include "ui/RVSection.h"

#include <plume/AccordionItem.h>
#include <plume/PlumeMainWindow.h>
#include <plume/WizardPage.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSettings>
#include <QSslCertificate>
#include <QStackedLayout>
#include <QStackedWidget>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>

namespace
{

// Self-signed, for updates.example, by an organisation with a unit.
const char certificatePem[] = "-----BEGIN CERTIFICATE-----\n"
                              "MIIB4DCCAYegAwIBAgIUGOcbxK71giKZpkG0vLoTXt2QSb0wCgYIKoZIzj0EAwIw\n"
                              "RTEVMBMGA1UECgwMRXhhbXBsZSBkYXRhMRIwEAYDVQQLDAlEYXRhIHVuaXQxGDAW\n"
                              "BgNVBAMMD3VwZGF0ZXMuZXhhbXBsZTAgFw0yNjExMjEwMTAyNDhaGA8yMTI2MTAy\n"
                              "ODAxMDI0OFowRTEVMBMGA1UECgwMRXhhbXBsZSBkYXRhMRIwEAYDVQQLDAlEYXRh\n"
                              "IHVuaXQxGDAWBgNVBAMMD3VwZGF0ZXMuZXhhbXBsZTBZMBMGByqGSM49AgEGCCqG\n"
                              "SM49AwEHA0IABE8LtO3sN50A0Qg99YFRxoQZ7TMF0CO6RlG1Lbfs4gUZmm5Qn3Js\n"
                              "2c5cLov7+O/Gpd5EiQ8AndRQPMfwNntQM86jUzBRMB0GA1UdDgQWBBT0sol9DGTo\n"
                              "3KFnL0nxmklQqFIzbjAfBgNVHSMEGDAWgBT0sol9DGTo3KFnL0nxmklQqFIzbjAP\n"
                              "BgNVHRMBAf8EBTADAQH/MAoGCCqGSM49BAMCA0cAMEQCICLlyrGJNK84AYEkR2Gv\n"
                              "+FaloZFORoaa0p6RvjrDmZtGAiAnukK611+XyNHLYu3qu06cyLPeg7tx6NchdqOZ\n"
                              "LrJO2Q==\n"
                              "-----END CERTIFICATE-----\n";

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
}

QString definition(const QString &key, const QUrl &url, const QString &selector)
{
    return QStringLiteral("<repository><title>Data %1</title>"
                          "<description>About data %1</description>"
                          "<uri_description>Location of data %1</uri_description>"
                          "<settings_key>%1</settings_key><default_uri>%2</default_uri>"
                          "<selector_type>%3</selector_type><icon>PackageRepository</icon>"
                          "<filter_pattern><archive_pattern>\\.deb$</archive_pattern>"
                          "<descriptor_pattern>\\.xml$</descriptor_pattern></filter_pattern>"
                          "</repository>")
        .arg(key, QString::fromLatin1(url.toEncoded()), selector);
}

class Reply : public QNetworkReply
{
public:
    Reply()
    {
        setError(HostNotFoundError, QString());
        setUrl(QUrl(QStringLiteral("https://updates.example/packages/")));
    }
    void abort() override { }

protected:
    qint64 readData(char *, qint64) override { return -1; }
};

} // namespace

Gallery::Gallery()
{
    makeSystem();
    addPages();
    addSectionViews();
    addBusyDialogs();
    addTableDialogs();
    addDialogs();
}

Gallery::~Gallery()
{
    while (!m_owned.empty()) {
        m_owned.pop_back();
    }
    m_section.reset();
    m_window.reset();
}

template<class Dialog, class... Arguments>
Dialog *Gallery::own(Arguments &&...arguments)
{
    auto dialog = std::make_unique<Dialog>(std::forward<Arguments>(arguments)...);
    Dialog *result = dialog.get();
    m_owned.push_back(std::move(dialog));
    return result;
}

void Gallery::add(const QString &name, QWidget *window, const std::function<void()> &enter)
{
    m_views.push_back({name, window, enter ? enter : [] {}});
}

void Gallery::makeSystem()
{
    m_world.add(QStringLiteral("one"), QStringLiteral("data-browser"), QStringLiteral("11.5.2"),
                QStringLiteral("A browser from example data"));
    m_world.add(QStringLiteral("two"), QStringLiteral("data-viewer"),
                QStringLiteral("2.0~data1-3+build7"), QStringLiteral("A viewer from example data"));
    QDir(m_world.file(QString())).mkpath(QStringLiteral("root/var/lib/dpkg"));
    QDir(m_world.file(QString())).mkpath(QStringLiteral("root/etc/cvtc-ravel/repositories"));
    m_paths = RVPaths::under(m_world.file(QStringLiteral("root")));
    m_paths.shell = m_world.paths().shell;
    m_paths.rootLog = m_paths.userLog = m_log.path();
    write(m_world.file(QStringLiteral("root/etc/imageid")), "6.1.0\n");
    write(m_world.file(QStringLiteral("root/var/lib/dpkg/status")),
          "Package: data-viewer\nStatus: install ok installed\nArchitecture: all\n"
          "Version: 1.9\n\n");
    const QString xml =
        QStringLiteral("<repository_list>%1%2%3</repository_list>")
            .arg(definition(QStringLiteral("packages"), m_world.url(), {}),
                 definition(QStringLiteral("images"), m_world.url(), QStringLiteral("PickOne")),
                 definition(QStringLiteral("packs"), m_emptyWorld.url(), {}));
    write(m_world.file(QStringLiteral("root/etc/cvtc-ravel/repositories/a.xml")), xml.toUtf8());
}

void Gallery::addPages()
{
    QSettings(QStringLiteral("Corvane"), QStringLiteral("Ravel")).clear();
    m_window = std::make_unique<PlumeMainWindow>();
    m_stack = new QStackedWidget;
    m_window->setCentralWidget(m_stack);
    QObject::connect(m_window.get(), &PlumeMainWindow::pageAdded, m_stack,
                     [this](WizardPage *page) {
                         m_stack->addWidget(page);
                     });
    m_section = std::make_unique<RVSection>(m_window.get(), nullptr, m_paths);
    for (WizardPage *page : m_window->pages()) {
        const auto enter = [this, page] {
            m_stack->setCurrentWidget(page);
        };
        if (qobject_cast<RVMainPage *>(page)) {
            m_mainPage = page;
        } else {
            add(QLatin1String(page->metaObject()->className()), m_window.get(), enter);
        }
    }
}

void Gallery::showSection(int index, int page)
{
    m_stack->setCurrentWidget(m_mainPage);
    const QList<AccordionItem *> items = m_mainPage->findChildren<AccordionItem *>();
    for (int i = 0; i < items.size(); ++i) {
        items.at(i)->setExpanded(i == index);
    }
    items.at(index)->frame()->findChild<QStackedLayout *>()->setCurrentIndex(page);
}

void Gallery::addSectionViews()
{
    const QList<RVControlFrame *> frames = m_mainPage->findChildren<RVControlFrame *>();
    const auto isFilled = [&frames] {
        const auto *table = frames.at(0)->findChild<SelectionTable *>();
        const auto *radio = frames.at(1)->findChild<SelectionTable *>();
        return table && table->rowCount() == 2 && radio && radio->rowCount() == 2;
    };
    if (!QTest::qWaitFor(isFilled, 15000)) {
        qFatal("the sections have no entries");
    }
    const struct {
        const char *name;
        int section;
        int page;
    } states[] = {
        {"choices", 0, RVControlFrame::SelectionPage},
        {"one choice", 1, RVControlFrame::SelectionPage},
        {"no updates", 2, RVControlFrame::SelectionPage},
        {"retrieval", 2, RVControlFrame::RetrievalPage},
        {"authentication", 2, RVControlFrame::AuthenticationPage},
        {"error", 2, RVControlFrame::ErrorPage},
    };
    for (const auto &state : states) {
        add(QStringLiteral("RVMainPage ") + QLatin1String(state.name), m_window.get(),
            [this, state] {
                showSection(state.section, state.page);
            });
    }
}

void Gallery::addBusyDialogs()
{
    add(QStringLiteral("BusyDialog start"), own<BusyDialog>());
    auto *download = own<BusyDialog>();
    download->setAutoReset(false);
    download->progress(1536, 10240);
    download->showDetails();
    add(QStringLiteral("BusyDialog download"), download);
    auto *install = own<BusyDialog>();
    install->disableCancel();
    install->enterInstallPhase();
    add(QStringLiteral("BusyDialog installation"), install);
    auto *end = own<BusyDialog>();
    end->enterInstallPhase();
    end->finished();
    add(QStringLiteral("BusyDialog end"), end);
}

void Gallery::addTableDialogs()
{
    auto *server = own<HttpServer>();
    server->hold();
    auto *table = own<SelectionTable>(
        QList<RVData>{m_world.remoteEntry(server->url(QStringLiteral("/data.deb")))},
        SelectionTable::CheckBoxes, &m_system, nullptr, m_world.paths());
    table->install();
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *dialog = qobject_cast<BusyDialog *>(widget);
        if (dialog && dialog->parentWidget() == table) {
            add(QStringLiteral("BusyDialog of a table"), dialog);
        }
    }
}

void Gallery::addDialogs()
{
    QString more = QStringLiteral("<base_releases>6.1.0</base_releases>"
                                  "<base_releases>6.2.0</base_releases>"
                                  "<unpacked_size>2048000</unpacked_size>"
                                  "<installed_size>5000000000</installed_size>"
                                  "<notes>Example notes</notes>");
    for (int i = 0; i < 1003; ++i) {
        more += QStringLiteral("<package>data-%1 1.0</package>").arg(i);
    }
    const RVData data = m_world.entry(QStringLiteral("pack"), QStringLiteral("data-pack"),
                                      QStringLiteral("1.0"), QStringLiteral("Example"), more);
    auto *details = own<ItemDetailsDialog>(data.descriptor());
    add(QStringLiteral("ItemDetailsDialog"), details);

    const QSslCertificate certificate{QByteArray(certificatePem)};
    QList<QSslError> errors;
    for (const auto error : {QSslError::SelfSignedCertificate, QSslError::CertificateRevoked,
                             QSslError::HostNameMismatch, QSslError::NoSslSupport}) {
        errors.append(QSslError(error, certificate));
    }
    const QUrl url(QStringLiteral("https://updates.example/packages/"));
    add(QStringLiteral("CertDialog closed"), own<CertDialog>(url, errors));
    auto *opened = own<CertDialog>(url, errors);
    opened->setDetailsChecked(true);
    add(QStringLiteral("CertDialog"), opened);

    auto *error = own<RVErrorDialog>();
    add(QStringLiteral("RVErrorDialog"), error, [error] {
        const Reply reply;
        error->showNetworkError(&reply);
    });
}

QList<Gallery::Text> Gallery::texts(const QWidget &window)
{
    QList<Text> result;
    QList<const QWidget *> widgets{&window};
    const QList<QWidget *> children = window.findChildren<QWidget *>();
    for (const QWidget *child : children) {
        widgets.append(child);
    }
    for (const QWidget *widget : qAsConst(widgets)) {
        const QString place = QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ')
            + widget->objectName();
        const auto say = [&result, &place](const char *what, const QString &text) {
            QString lines = text;
            lines.replace(QLatin1String("<br />"), QLatin1String("\n"));
            const QStringList parts = lines.split(QLatin1Char('\n'));
            for (const QString &part : parts) {
                result.append({place + QLatin1Char(' ') + QLatin1String(what), part});
            }
        };
        say("title", widget->windowTitle());
        say("tool tip", widget->toolTip());
        say("name", widget->accessibleName());
        say("description", widget->accessibleDescription());
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            say("text", label->text());
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            say("text", button->text());
        } else if (const auto *box = qobject_cast<const QGroupBox *>(widget)) {
            say("text", box->title());
        } else if (const auto *bar = qobject_cast<const QProgressBar *>(widget)) {
            say("format", bar->format());
        } else if (const auto *edit = qobject_cast<const QTextEdit *>(widget)) {
            say("text", edit->toPlainText());
        } else if (const auto *line = qobject_cast<const QLineEdit *>(widget)) {
            say("hint", line->placeholderText());
        } else if (const auto *page = qobject_cast<const WizardPage *>(widget)) {
            say("page's title", page->title());
            say("page's description", page->description());
            say("page's help", page->helpText());
        } else if (const auto *table = qobject_cast<const QTableWidget *>(widget)) {
            const QAbstractItemModel *model = table->model();
            for (const int role : {int(Qt::DisplayRole), int(Qt::AccessibleTextRole),
                                   int(Qt::ToolTipRole), int(Qt::AccessibleDescriptionRole)}) {
                for (int column = 0; column < model->columnCount(); ++column) {
                    say("header", model->headerData(column, Qt::Horizontal, role).toString());
                    for (int row = 0; row < model->rowCount(); ++row) {
                        say("cell", model->index(row, column).data(role).toString());
                    }
                }
            }
        }
    }
    return result;
}
