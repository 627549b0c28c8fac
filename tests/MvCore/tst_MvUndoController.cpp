// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvTest.h"

#include "MvCore/MvUndoCommand.h"
#include "MvCore/MvUndoController.h"

using namespace Qt::StringLiterals;

namespace {

/// Writes down what is done and undone, and that it was deleted.
class TestCommand : public MvUndoCommand
{
public:
    TestCommand(const QString &name, QStringList *log, QUndoCommand *parent = nullptr)
        : MvUndoCommand(name, parent)
        , m_log(log)
    {
        setObsolete(name == u"none"_s);
    }
    ~TestCommand() override { m_log->append(u"~"_s + text()); }

    void doCoreAction() override { m_log->append(u"+"_s + text()); }
    void undoCore() override { m_log->append(u"-"_s + text()); }

private:
    QStringList *m_log;
};

} // namespace

class tst_MvUndoController : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void steps_data();
    void steps();
    void childrenGoWithTheirParent();
};

void tst_MvUndoController::steps_data()
{
    // ( and ) begin and end a macro, < undoes, > redoes, ! clears, 0 pushes nothing and a step without effect, a letter
    // is a command
    const MvRows<QString, QString, int> row; // actions; log; count: of the steps in the end
    row("there and back", u"ab<<<>>>"_s, u"+a +b -b -a +a +b"_s, 2);
    row("new steps replace undone ones", u"a<b><"_s, u"+a -a +b ~a -b"_s, 1);
    row("a macro is one step", u"a(bc)<"_s, u"+a +b +c -c -b"_s, 2);
    row("in each other", u"(a(b(c))d)<"_s, u"+a +b +c +d -d -c -b -a"_s, 1);
    row("an empty one leaves no step", u"a()<"_s, u"+a -a"_s, 1);
    row("empty ones in each other", u"a(())<"_s, u"+a -a"_s, 1);
    row("an empty one in a full one", u"(()a())b<"_s, u"+a +b -b"_s, 2);
    row("one after an empty one", u"()(ab)<"_s, u"+a +b -b -a"_s, 1);
    row("without effect there is no step", u"a<0>"_s, u"+a -a ~none +a"_s, 1);
    row("undo waits for the macro", u"a(<b<)<"_s, u"+a +b -b"_s, 2);
    row("clears without undoing", u"a(!b"_s, u"+a ~a +b"_s, 1);
}

void tst_MvUndoController::steps()
{
    const auto [actions, log, count] = MvRows<QString, QString, int>::current();
    QStringList done; // outlives the controller, whose commands write at their end
    MvUndoController controller;
    for (const QChar action : actions) {
        switch (action.toLatin1()) {
        case '(':
            controller.beginMacro(u"macro"_s);
            break;
        case ')':
            controller.endMacro();
            break;
        case '<':
            controller.undo();
            break;
        case '>':
            controller.redo();
            break;
        case '!':
            controller.clear();
            break;
        case '0':
            controller.push(nullptr);
            controller.push(new TestCommand(u"none"_s, &done));
            break;
        default:
            controller.push(new TestCommand(action, &done));
        }
    }
    QCOMPARE(done.join(u' '), log);
    QCOMPARE(controller.stack()->count(), count);
}

void tst_MvUndoController::childrenGoWithTheirParent()
{
    QStringList log;
    auto controller = std::make_unique<MvUndoController>();
    auto *parent = new TestCommand(u"parent"_s, &log);
    new TestCommand(u"1"_s, &log, parent);
    new TestCommand(u"2"_s, &log, parent);
    controller->push(parent);
    QCOMPARE(controller->stack()->undoText(), u"parent"_s);
    controller->undo();
    QCOMPARE(log.join(u' '), u"+parent +1 +2 -2 -1 -parent"_s);
    controller.reset();
    QCOMPARE(log.size(), 9); // owned
}

MV_TEST_MAIN(tst_MvUndoController)
#include "tst_MvUndoController.moc"
