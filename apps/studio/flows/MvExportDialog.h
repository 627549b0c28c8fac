// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvProject/MvCalendarDocument.h"
#include "flows/MvExportOptions.h"
#include "flows/MvPageRange.h"

#include <QDialog>

class MvPagePreview;
class MvPressChoice;
class MvPrintFindingList;
class MvPrintWatch;
class MvSheetChoice;
class MvSpinBox;
class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
struct MvPrintFinding;

/// Asks where a calendar is to be exported to, which pages of it, and how fine. Beside it stands what will
/// come out of the printer, and below what of them would not print well: each line shows its place there, and leads to
/// it in the window.
class MvExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// The name, without suffix, is what the file is called at first.
    MvExportDialog(MvExportOptions::Kind kind, const MvCalendarDocument &document, int currentPage,
                   const QString &folder, const QString &name, MvPrintWatch *watch, QWidget *parent);

    /// What is asked for. Only to be used when the dialog was accepted.
    MvExportOptions options() const;
    /// Offers this resolution and this folder the next time.
    static void remember(const MvExportOptions &options);
    /// Everything that would spoil the print was in sight when the dialog was accepted.
    bool hasToldEverything() const;

Q_SIGNALS:
    /// Somebody would rather go there first; the dialog has closed.
    void placeWanted(const MvPrintFinding &finding);

private:
    QWidget *createFindings();
    void showFindings();
    void goTo(const MvPrintFinding &finding);
    bool isPdf() const { return m_kind == MvExportOptions::Kind::Pdf; }
    void addTarget(QFormLayout *form, const QString &folder, const QString &name);
    void addPages(QFormLayout *form);
    void addResolution(QFormLayout *form);
    void addBleed(QFormLayout *form);
    void addPress(QFormLayout *form);
    void addSheets(QFormLayout *form);
    void browse();
    QString target() const;
    MvPageRange::Pages pages() const;
    /// What keeps it from being exported, or what the user should know before, such as files that are replaced.
    MvOutcome check() const;
    MvOutcome checkTarget() const;
    QStringList notes(const QStringList &files) const;
    void validate();

    MvExportOptions::Kind m_kind;
    MvCalendarDocument m_document;
    int m_currentPage;
    MvPrintWatch *m_watch;
    MvPagePreview *m_preview;
    MvPrintFindingList *m_findings;
    QLabel *m_summary;
    QLineEdit *m_target;
    QLineEdit *m_pattern = nullptr;
    QComboBox *m_pages;
    QLineEdit *m_pageText;
    MvSpinBox *m_dpi = nullptr;
    QDoubleSpinBox *m_bleed = nullptr;
    MvPressChoice *m_press = nullptr;
    MvSheetChoice *m_sheets = nullptr;
    QLabel *m_message;
    QPushButton *m_export = nullptr;
};
