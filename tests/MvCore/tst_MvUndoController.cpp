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
    void steps_data() { MvRows<QString, QString, int>().read(u"undo-steps"_s); }
    void steps();
    void childrenGoWithTheirParent();
};

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
