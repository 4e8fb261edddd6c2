// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#include "ui/ItemDetailsDialog.h"

#include "core/ByteSize.h"
#include "core/RVText.h"
#include "core/RVUrl.h"
#include "descriptor/DataXML.h"
#include "descriptor/DescriptorGeneric.h"
#include "ui/NotesDocument.h"
#include "ui/RVStyle.h"
#include "ui/RVTrustTexts.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTextCursor>
#include <QTextEdit>
#include <QVBoxLayout>

namespace
{

constexpr int widestInformation = 800;
constexpr int lowestContents = 80;
constexpr int wideGap = 40;
/// A descriptor may list a million files; each row costs two widgets.
constexpr int maximumContentRows = 1000;
constexpr int maximumTextLength = 2000;
constexpr int maximumUnbroken = 60;

// As text in a rich-text label, which breaks lines at blanks only: a long run without one gets
// places to break at, of no width.
QString labelText(const QString &text)
{
    constexpr QChar breakHere(0x200b);
    QString result;
    int unbroken = 0;
    for (const QChar c : RVText::shown(text, maximumTextLength)) {
        unbroken = c.isSpace() ? 0 : unbroken + 1;
        if (unbroken > maximumUnbroken && !c.isLowSurrogate()) {
            result += breakHere;
            unbroken = 1;
        }
        result += c;
    }
    return result.toHtmlEscaped();
}

} // namespace

ItemDetailsDialog::ItemDetailsDialog(const DescriptorGeneric *descriptor, QWidget *parent,
                                     Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_descriptor(descriptor)
{
    setup();
}

ItemDetailsDialog::ItemDetailsDialog(const QSharedPointer<const DescriptorGeneric> &descriptor,
                                     QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_keptDescriptor(descriptor)
    , m_descriptor(descriptor.data())
{
    setup();
}

ItemDetailsDialog::~ItemDetailsDialog() = default;

void ItemDetailsDialog::setup()
{
    setModal(false);

    m_informationLabel = new QLabel;
    m_informationLabel->setObjectName(QStringLiteral("information"));
    m_informationLabel->setTextFormat(Qt::RichText);
    m_informationLabel->setTextInteractionFlags(Qt::TextSelectableByMouse
                                                | Qt::TextSelectableByKeyboard);
    m_informationLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_informationLabel->setWordWrap(true);
    m_informationLabel->setMaximumWidth(
        qMax(widestInformation, 100 * fontMetrics().averageCharWidth()));
    auto *informationLayout = new QHBoxLayout;
    informationLayout->addWidget(m_informationLabel);

    auto *contents = new QFrame;
    auto *grid = new QGridLayout(contents);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    const int count = m_descriptor->contentFiles().size();
    const int rows = qMin(count, maximumContentRows);
    for (int i = 0; i < 2 * rows; ++i) {
        auto *label = new QLabel;
        label->setTextFormat(Qt::PlainText);
        grid->addWidget(label, i / 2, i % 2);
        m_contentLabels.append(label);
    }
    if (count > rows) {
        m_moreLabel = new QLabel;
        m_moreLabel->setObjectName(QStringLiteral("more"));
        grid->addWidget(m_moreLabel, rows, 0, 1, 2);
    }
    m_contentsArea = new QScrollArea;
    m_contentsArea->setObjectName(QStringLiteral("contents"));
    m_contentsArea->setWidget(contents);
    m_contentsArea->setMaximumHeight(qMax(lowestContents, 5 * fontMetrics().lineSpacing()));
    m_contentsArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    m_notes = new NotesDocument(this);
    m_notesView = new QTextEdit;
    m_notesView->setObjectName(QStringLiteral("notes"));
    m_notesView->setReadOnly(true);
    m_notesView->setTabChangesFocus(true);
    m_notesView->setMinimumSize(70 * fontMetrics().averageCharWidth(),
                                10 * fontMetrics().lineSpacing());
    m_notesView->setDocument(m_notes);

    auto *buttonBox = new QDialogButtonBox(QDialogButtonBox::Ok, Qt::Horizontal);
    buttonBox->button(QDialogButtonBox::Ok)->setIcon(RVStyle().StdIcon(RVStyle::Ok));
    connect(buttonBox, &QDialogButtonBox::accepted, this, &ItemDetailsDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(informationLayout);
    layout->addSpacing(wideGap);
    layout->addWidget(m_contentsArea);
    layout->addSpacing(wideGap);
    layout->addSpacing(10);
    layout->addWidget(m_notesView, 1);
    layout->addSpacing(1);
    layout->addWidget(buttonBox);
    buttonBox->button(QDialogButtonBox::Ok)->setFocus();

    retranslateUi();
}

void ItemDetailsDialog::done(int result)
{
    QDialog::done(result);
    deleteLater();
}

void ItemDetailsDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    QDialog::changeEvent(event);
}

void ItemDetailsDialog::explainImageCheck()
{
    m_isImageChecked = true;
    retranslateUi();
}

void ItemDetailsDialog::retranslateUi()
{
    setWindowTitle(
        RVText::shown(DataXML::plainText(m_descriptor->name(QString())), maximumUnbroken));
    m_informationLabel->setText(information());
    m_contentsArea->setAccessibleName(tr("Contents"));
    m_notesView->setAccessibleName(tr("Notes"));

    const QStringList files = m_descriptor->contentFiles();
    for (int i = 0; i < m_contentLabels.size() / 2; ++i) {
        const QStringList parts = files.value(i).split(QLatin1Char(' '));
        for (int column = 0; column < 2; ++column) {
            m_contentLabels.at(2 * i + column)
                ->setText(RVText::shown(DataXML::plainText(parts.value(column)), maximumUnbroken));
        }
    }
    if (m_moreLabel) {
        m_moreLabel->setText(tr("and %n more", nullptr, files.size() - maximumContentRows));
    }
    m_contentsArea->setMinimumHeight(qMin(m_contentsArea->maximumHeight(),
                                          m_contentsArea->widget()->layout()->sizeHint().height()
                                              + 2 * m_contentsArea->frameWidth()));
    m_contentsArea->setVisible(!files.isEmpty());

    m_notes->setNotes(m_descriptor->contentNotes(QString()));
    m_notesView->moveCursor(QTextCursor::Start);
    m_notesView->ensureCursorVisible();
}

QString ItemDetailsDialog::information() const
{
    const QString separator = QStringLiteral("<br />");
    QString text;
    const auto addLine = [&text, &separator](const QString &format, const QString &value) {
        text += format.arg(labelText(value)) + separator;
    };

    const QString title = m_descriptor->title(QString());
    if (!title.isEmpty()) {
        addLine(tr("Title:  <b>%1</b>"), DataXML::plainText(title));
    }
    const VersionString version = m_descriptor->version();
    if (!version.isEmpty()) {
        addLine(tr("Version:  <b>%1</b>"), DataXML::plainText(version.toString()));
    }
    const QUrl &url = m_descriptor->url();
    if (!url.isEmpty()) {
        addLine(tr("URI:  <b>%1</b>"), RVUrl::shown(url));
    }
    const QStringList releases = m_descriptor->baseReleases();
    if (!releases.isEmpty()) {
        addLine(tr("For Releases:  <b>%1</b>"),
                DataXML::plainText(releases.join(tr(", ", "list join character"))));
    }
    if (m_descriptor->size() >= 0) {
        addLine(tr("Update Size:  <b>%1</b>"), sizeStr(m_descriptor->size()));
    }
    if (m_descriptor->unpackedSize() >= 0) {
        addLine(tr("Unpacked Size:  <b>%1</b>"), sizeStr(m_descriptor->unpackedSize()));
    }
    if (m_descriptor->installedSize() >= 0) {
        addLine(tr("Installed Size:  <b>%1</b>"), sizeStr(m_descriptor->installedSize()));
    }
    if (m_isImageChecked) {
        text += RVTrustTexts::imageNote().toHtmlEscaped() + separator;
    }
    if (!m_descriptor->contentFiles().isEmpty()) {
        text += tr("Service Pack Contents: ") + separator;
    }
    return text;
}

QString ItemDetailsDialog::sizeStr(qint64 bytes) const
{
    const ByteSize size(bytes);
    switch (size.unit) {
    case ByteSize::KiB:
        return tr("%1 KiB", "KiB = kibibyte:  1024 bytes").arg(size.number);
    case ByteSize::MiB:
        return tr("%1 MiB", "MiB = mebibyte:  1024*1024 bytes").arg(size.number);
    case ByteSize::GiB:
        return tr("%1 GiB", "GiB = gibibyte:  1024*1024*1024 bytes").arg(size.number);
    case ByteSize::Bytes:
        break;
    }
    return size.number;
}
