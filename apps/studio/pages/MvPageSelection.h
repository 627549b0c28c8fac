// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QObject>

class MvProject;

/// What of the shown page a person has chosen: elements, a day, or nothing, which means the calendar as a whole.
///
/// Of several elements the one that was chosen last is the one that panels show. It follows the project: what is not
/// there any more is not chosen. An element keeps its number while the page changes.
class MvPageSelection : public QObject
{
    Q_OBJECT

public:
    enum class Kind {
        Calendar,
        Foto,
        Text,
        Day,
        Calendarium, ///< as a frame, without its days
    };

    /// The project is not owned.
    explicit MvPageSelection(MvProject *project, QObject *parent = nullptr);

    Kind kind() const { return m_kind; }
    int page() const { return m_page; }
    /// The element's number on its page, in reading order; -1 for none.
    int element() const { return m_element; }
    /// All chosen elements in their order; empty when none is.
    QList<int> elements() const;
    /// Those of the chosen elements that are of the same kind as the one that panels show; that one last.
    QList<int> elementsOfKind() const;
    /// Invalid when no day is chosen.
    QDate date() const { return m_date; }

    /// What was chosen on the page before is not any more.
    void setPage(int page);
    void selectNothing();
    /// An element of the page alone; any other number selects nothing.
    void selectElement(int element);
    /// Takes an element to those that are chosen, or away from them.
    void toggleElement(int element);
    /// These together, the last one shown by panels.
    void selectElements(const QList<int> &elements);
    void selectDay(const QDate &date);
    /// Goes through the page's elements, forwards or backwards, and past the last one to nothing.
    void selectNext(bool isForward = true);

Q_SIGNALS:
    void changed();

private:
    void set(Kind kind, int element, const QDate &date, const QList<int> &others = {});
    Kind kindOf(int element) const;
    void check();

    MvProject *m_project;
    Kind m_kind = Kind::Calendar;
    int m_page = 0;
    int m_element = -1;
    QList<int> m_others; // elements beside that one
    QDate m_date;
};
