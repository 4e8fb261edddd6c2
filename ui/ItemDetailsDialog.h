// SPDX-FileCopyrightText: 2026 Ravel developers
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QList>
#include <QSharedPointer>

class DescriptorGeneric;
class NotesDocument;
class QLabel;
class QScrollArea;
class QTextEdit;

/// Everything that a descriptor says about one update. Not modal; deletes itself when it is closed.
/// What comes from the descriptor is shown as text, but for the notes, whose markup is reduced by
/// NotesDocument.
class ItemDetailsDialog : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ItemDetailsDialog)

public:
    /// `descriptor` must outlive the dialog.
    explicit ItemDetailsDialog(const DescriptorGeneric *descriptor, QWidget *parent = nullptr,
                               Qt::WindowFlags flags = {});
    /// Keeps the descriptor for as long as the dialog is open.
    explicit ItemDetailsDialog(const QSharedPointer<const DescriptorGeneric> &descriptor,
                               QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~ItemDetailsDialog() override;

    /// For an image whose repository lists its sum: what that means is said.
    void explainImageCheck();
    void retranslateUi();
    /// A byte count in KiB, MiB or GiB.
    QString sizeStr(qint64 bytes) const;

    /// OK, closing and Escape all end here.
    void done(int result) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void setup();
    QString information() const;

    QSharedPointer<const DescriptorGeneric> m_keptDescriptor;
    const DescriptorGeneric *m_descriptor;
    bool m_isImageChecked = false;
    QLabel *m_informationLabel = nullptr;
    NotesDocument *m_notes = nullptr;
    QTextEdit *m_notesView = nullptr;
    QScrollArea *m_contentsArea = nullptr;
    /// Name and version of each content file, row by row.
    QList<QLabel *> m_contentLabels;
    QLabel *m_moreLabel = nullptr;
};
