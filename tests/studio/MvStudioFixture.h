// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvWidgetTest.h"
#include "window/MvStudioWindow.h"

#include "MvPaint/MvPaintRecording.h"

#include <QDate>
#include <QTemporaryDir>

#include <memory>

class MvCalendarDayEditorDialog;
class MvCalendarDocument;
class MvEntryBubble;
class MvPageCanvas;
class MvPageItem;
class MvProject;
class MvStudioApplication;
class QAction;
class QComboBox;
class QMenu;

/// The running studio, driven as a person does: by clicks, keys and drops on what is to be seen.
///
/// Every fixture starts without entries and settings, with a calendar of 2027 on A4.
class MvStudioFixture
{
public:
    explicit MvStudioFixture(const QString &layout = QStringLiteral("MONTH_GRID_CLASSIC"),
                             const QString &language = QStringLiteral("de"));
    ~MvStudioFixture();

    /// Starts the program, again where it runs: with what it begins by itself.
    void start(const QStringList &arguments = {});
    /// Closes the window, ends the program and starts it anew: what it knows then, it has read from its files.
    void restart();

    MvStudioWindow *window() const;
    MvProject *project() const;
    const MvCalendarDocument &document() const;
    MvPageCanvas *canvas() const;
    /// The page as it is after everything that has happened.
    MvPageItem *page() const;
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// A photo of that colour.
    QString writeFoto(const QString &name, const QColor &color, const QSize &size = {300, 200}) const;

    /// The widget under a name that is to be seen; null when none is.
    template <class Widget = QWidget>
    static Widget *find(const QWidget *parent, const char *name)
    {
        const auto all = parent->findChildren<Widget *>(QLatin1StringView(name));
        const auto shown = std::find_if(all.begin(), all.end(), [](const Widget *one) { return one->isVisible(); });
        return shown == all.end() ? nullptr : *shown;
    }
    template <class Widget = QWidget>
    Widget *find(const char *name) const
    {
        return find<Widget>(window(), name);
    }
    /// The open dialog of a kind, wherever it belongs.
    template <class Dialog>
    static Dialog *dialog(const char *name = nullptr)
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *found = qobject_cast<Dialog *>(widget);
            if (found && found->isVisible() && (!name || found->objectName() == QLatin1StringView(name)))
                return found;
        }
        return nullptr;
    }

    // ---- what a person does; where it can be impossible, false says so

    void activate() const;
    /// Opens a panel of the inspector by its name.
    bool openSection(const char *name) const;
    bool trigger(const char *action) const;
    bool click(QWidget *parent, const char *button) const;
    /// Presses the key in the widget, which gets the focus first.
    bool press(const char *widget, int key, Qt::KeyboardModifiers modifiers = {}) const;
    /// Opens the box and takes the row that begins with the text.
    bool choose(const char *box, const QString &text) const;
    bool chooseInMenu(QMenu *menu, const QString &begin) const;
    bool chooseFile(const QString &path) const;
    /// Clicks a date of the shown page; null when no bubble opens there.
    MvEntryBubble *clickDate(const QDate &date) const;
    /// The bubble of a date with the entry that begins with the text, if there are entries.
    MvEntryBubble *openBubble(const QDate &date, const QString &entry) const;
    /// The day editor, from that bubble.
    MvCalendarDayEditorDialog *openDay(const QDate &date, const QString &entry) const;
    /// Drags the text of an entry with the mouse; false when it is not there.
    bool dragEntry(const QDate &from, const QString &text, const QDate &to, Qt::KeyboardModifiers modifiers = {}) const;
    /// Drops a file on what lies there; false when it is not taken.
    static bool dropFile(QWidget *window, const QPoint &position, const QString &path,
                         Qt::KeyboardModifiers modifiers = {});
    bool dropOnDate(const QDate &date, const QString &path, Qt::KeyboardModifiers modifiers = {}) const;
    /// Gives the shown page the photo and chooses it.
    void selectFoto(const QString &path) const;
    void undo() const;
    void redo() const;
    void pressInCanvas(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;
    int steps() const;

    // ---- what is to be seen on the shown page

    /// All texts, or those of a day, without spaces and hyphens: however they are broken into lines.
    QString texts(const QDate &date = {}) const;
    /// The days whose texts contain the text.
    QList<QDate> datesWith(const QString &text) const;
    bool hasPhoto(const QDate &date) const;
    /// What the cell of a day is filled with; invalid when with nothing.
    QColor cellColor(const QDate &date) const;
    /// The colours of all lines and borders.
    QSet<QRgb> lineColors() const;
    QList<MvPaintRecording::Item> items(MvPaintRecording::Item::Kind kind) const;

private:
    QRectF rectOf(const QDate &date) const;
    QPoint pointOf(const QDate &date) const; // of the viewport

    QTemporaryDir m_folder;
    QString m_language;
    std::unique_ptr<MvStudioApplication> m_studio;
};
