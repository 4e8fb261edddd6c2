// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/RVProxies.h"

#include "core/RVLogger.h"
#include "repository/RVProxySettings.h"
#include "ui/RVProxyTable.h"
#include "ui/RVStyle.h"

#include <QAccessible>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace
{

constexpr int rowCount = RVProxySettings::typeCount;

// Types of connection, which are no words of a language.
const QString &type(int row)
{
    return RVProxySettings::typeNames().at(row);
}

} // namespace

RVProxies::RVProxies(const QString &organisation, const QString &application, const QString &title,
                     const QString &description, const QIcon &icon, QWidget *parent,
                     const RVPaths &paths)
    : ControlFrame(parent)
    , m_organisation(organisation)
    , m_application(application)
    , m_title(title)
    , m_description(description)
    , m_icon(icon)
    , m_group(new QGroupBox)
    , m_explanation(new QLabel)
    , m_noProxies(new QRadioButton)
    , m_manual(new QRadioButton)
    , m_table(new RVProxyTable(rowCount))
    , m_useSame(new QCheckBox)
    , m_warning(new QWidget)
    , m_warningIcon(new QLabel)
    , m_warningText(new QLabel)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok))
{
    m_explanation->setWordWrap(true);
    m_noProxies->setObjectName(QStringLiteral("noProxies"));
    m_manual->setObjectName(QStringLiteral("manualProxies"));
    m_useSame->setObjectName(QStringLiteral("useSameForAll"));
    m_warningText->setObjectName(QStringLiteral("portWarning"));
    makeRows();

    showWarningIcon();
    outlineButtons();
    m_warningText->setTextFormat(Qt::PlainText);
    m_warningText->setWordWrap(true);
    auto *warning = new QHBoxLayout(m_warning);
    warning->setContentsMargins(0, 0, 0, 0);
    warning->addWidget(m_warningIcon, 0, Qt::AlignTop);
    warning->addWidget(m_warningText, 1);

    // Below the button that they belong to.
    auto *manual = new QVBoxLayout;
    const int indent = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth)
        + style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
    manual->setContentsMargins(indent, 0, 0, 0);
    manual->addWidget(m_table);
    manual->addWidget(m_useSame);
    manual->addWidget(m_warning);
    auto *group = new QVBoxLayout(m_group);
    group->addWidget(m_explanation);
    group->addWidget(m_noProxies);
    group->addWidget(m_manual);
    group->addLayout(manual);

    QPushButton *ok = m_buttons->button(QDialogButtonBox::Ok);
    ok->setIcon(RVStyle(paths).StdIcon(RVStyle::Ok));
    ok->setAutoDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_group);
    layout->addWidget(m_buttons);

    connect(m_noProxies, &QRadioButton::toggled, this, &RVProxies::radioToggled);
    connect(m_manual, &QRadioButton::toggled, this, &RVProxies::radioToggled);
    connect(m_useSame, &QCheckBox::toggled, this, &RVProxies::useSameToggled);
    connect(m_table, &QTableWidget::itemChanged, this, &RVProxies::showBadPorts);
    connect(ok, &QPushButton::clicked, this, &RVProxies::okButtonPressed);
    retranslateUi();
    initFromSettings();
    radioToggled(m_manual->isChecked());
}

RVProxies::~RVProxies() = default;

void RVProxies::setHeading(const QString &title, const QString &description)
{
    m_title = title;
    m_description = description;
    Q_EMIT headingChanged();
}

int RVProxies::currentStyle() const
{
    return m_manual->isChecked() ? RVProxySettings::Manual : RVProxySettings::None;
}

void RVProxies::emitProxySignals()
{
    const RVProxySettings settings = entered();
    for (int row = 0; row < rowCount; ++row) {
        const auto proxy = settings.effective(static_cast<RVProxySettings::Type>(row));
        Q_EMIT proxyChanged(type(row), proxy.host, proxy.port);
    }
}

void RVProxies::initFromSettings()
{
    const RVProxySettings settings = RVProxySettings::read(m_organisation, m_application);
    // A style without a button is of another version, and changes nothing here.
    if (settings.style == RVProxySettings::None) {
        m_noProxies->setChecked(true);
    } else if (settings.style == RVProxySettings::Manual) {
        m_manual->setChecked(true);
    }
    m_useSame->setChecked(settings.useForAll);
    for (int row = 0; row < rowCount; ++row) {
        const RVProxySettings::Proxy &proxy = settings.proxies.at(static_cast<std::size_t>(row));
        m_table->item(row, RVProxyTable::ServerColumn)->setText(proxy.host);
        m_table->item(row, RVProxyTable::PortColumn)
            ->setText(proxy.port > 0 ? QString::number(proxy.port) : QString());
    }
}

void RVProxies::okButtonPressed()
{
    m_table->commitEditor();
    for (int row = 0; row < rowCount; ++row) {
        // Without its proxy a connection would go where the user did not want it to.
        if (isBad(row)) {
            refuse(row);
            return;
        }
    }
    m_refused = false;
    save();
    emitProxySignals();
    Q_EMIT modified();
}

void RVProxies::refuse(int row)
{
    m_refused = true;
    showBadPorts();
    m_table->setFocus();
    m_table->setCurrentCell(row, RVProxyTable::PortColumn);
    m_table->editItem(m_table->item(row, RVProxyTable::PortColumn));
    QAccessibleEvent alert(m_warningText, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void RVProxies::save()
{
    const RVProxySettings stored = RVProxySettings::read(m_organisation, m_application);
    RVProxySettings settings = entered();
    for (int row = 0; row < rowCount; ++row) {
        RVProxySettings::Proxy &proxy = settings.proxies.at(static_cast<std::size_t>(row));
        // In a row that is not used; it takes the place of no port that was stored.
        if (proxy.port < 0 && !m_table->text(row, RVProxyTable::PortColumn).isEmpty()) {
            proxy.port = stored.proxies.at(static_cast<std::size_t>(row)).port;
        }
    }
    if (!settings.write(m_organisation, m_application)) {
        RVLogger().log(3, "The proxy settings could not be stored");
    }
}

RVProxySettings RVProxies::entered() const
{
    RVProxySettings settings;
    settings.style = currentStyle();
    settings.useForAll = m_useSame->isChecked();
    for (int row = 0; row < rowCount; ++row) {
        settings.proxies.at(static_cast<std::size_t>(row)) = {
            m_table->text(row, RVProxyTable::ServerColumn), m_table->port(row)};
    }
    return settings;
}

void RVProxies::radioToggled(bool)
{
    m_table->setEnabled(m_manual->isChecked());
    m_useSame->setEnabled(m_manual->isChecked());
    showBadPorts();
}

void RVProxies::useSameToggled(bool on)
{
    m_table->item(0, RVProxyTable::SchemeColumn)
        ->setText(on ? tr("All", "All connection types (short word)") : type(0));
    enableRows();
    showBadPorts();
}

void RVProxies::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        showWarningIcon();
    } else if (event->type() == QEvent::PaletteChange) {
        outlineButtons();
    }
    ControlFrame::changeEvent(event);
}

void RVProxies::retranslateUi()
{
    m_group->setTitle(tr("Network Proxies"));
    m_explanation->setText(tr("Options for selecting networking proxies"));
    m_noProxies->setText(tr("No proxies"));
    m_manual->setText(tr("Manual Proxy Configuration:"));
    m_useSame->setText(tr("Use same proxy for all"));
    m_table->setAccessibleName(m_group->title());
    QTableWidgetItem *scheme = m_table->horizontalHeaderItem(RVProxyTable::SchemeColumn);
    scheme->setText(tr("Scheme"));
    scheme->setToolTip(tr("Type of connection, e.g. HTTP, FTP"));
    m_table->horizontalHeaderItem(RVProxyTable::ServerColumn)->setText(tr("Server"));
    QTableWidgetItem *port = m_table->horizontalHeaderItem(RVProxyTable::PortColumn);
    port->setText(tr("Port"));
    port->setToolTip(tr("Networking port number"));
    m_table->fitColumns();
    useSameToggled(m_useSame->isChecked());
}

void RVProxies::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_buttons->button(QDialogButtonBox::Ok)->click();
        return;
    }
    ControlFrame::keyPressEvent(event);
}

void RVProxies::makeRows()
{
    for (int row = 0; row < rowCount; ++row) {
        QTableWidgetItem *scheme = m_table->item(row, RVProxyTable::SchemeColumn);
        scheme->setText(type(row));
        scheme->setFlags(scheme->flags() & ~Qt::ItemIsEditable);
    }
}

// Disabled and not hidden: the page keeps its height, and the user sees what comes back with the
// check mark. What is in the rows is stored with the rest.
void RVProxies::enableRows()
{
    for (int row = 1; row < rowCount; ++row) {
        for (int column = 0; column < m_table->columnCount(); ++column) {
            QTableWidgetItem *cell = m_table->item(row, column);
            cell->setFlags(m_useSame->isChecked() ? cell->flags() & ~Qt::ItemIsEnabled
                                                  : cell->flags() | Qt::ItemIsEnabled);
        }
    }
}

// Styles outline an indicator in a darker shade of the window, which a dark one does not have.
void RVProxies::outlineButtons()
{
    QPalette outlined;
    if (RVStyle::isDark(palette().color(QPalette::Window))) {
        outlined.setColor(QPalette::Window, palette().color(QPalette::WindowText));
    }
    for (QAbstractButton *button :
         {static_cast<QAbstractButton *>(m_noProxies), static_cast<QAbstractButton *>(m_manual),
          static_cast<QAbstractButton *>(m_useSame)}) {
        button->setPalette(outlined);
    }
}

void RVProxies::showWarningIcon()
{
    const int extent = fontMetrics().height();
    m_warningIcon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(extent, extent));
}

bool RVProxies::isUsed(int row) const
{
    return currentStyle() == RVProxySettings::Manual && (row == 0 || !m_useSame->isChecked());
}

bool RVProxies::isBad(int row) const
{
    const bool isUnset = m_table->text(row, RVProxyTable::ServerColumn).isEmpty()
        && m_table->text(row, RVProxyTable::PortColumn).isEmpty();
    return isUsed(row) && !isUnset && m_table->port(row) < 0;
}

void RVProxies::showBadPorts()
{
    QStringList problems;
    for (int row = 0; row < rowCount; ++row) {
        // Who has typed a server is on the way to its port.
        const bool isEmpty = m_table->text(row, RVProxyTable::PortColumn).isEmpty();
        QString problem;
        if (isBad(row) && (!isEmpty || m_refused)) {
            problem = tr("The port for %1 must be a number from 1 to 65535.",
                         "The argument is a connection type, e.g. HTTP, or the word for all.")
                          .arg(m_table->item(row, RVProxyTable::SchemeColumn)->text());
            problems.append(problem);
        }
        m_table->setProblem(row, problem);
    }
    m_warningText->setText(problems.join(QLatin1Char('\n')));
    m_warning->setVisible(!problems.isEmpty());
}
