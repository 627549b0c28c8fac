// SPDX-License-Identifier: LGPL-2.1-or-later
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
    {}
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
    void init();
    void doesAtOnceAndTakesBack();
    void newStepsReplaceUndoneOnes();
    void childrenGoWithTheirParent();
    void macros_data();
    void macros();
    void withoutEffectThereIsNoStep();
    void undoWaitsForTheMacro();
    void clearsWithoutUndoing();

private:
    void push(const QString &name) { m_controller->push(new TestCommand(name, &m_log)); }
    QString takeLog() { return std::exchange(m_log, {}).join(u' '); }

    QStringList m_log; // outlives the controller, whose commands write at their end
    std::unique_ptr<MvUndoController> m_controller;
};

void tst_MvUndoController::init()
{
    QTest::failOnWarning(QRegularExpression(u".?"_s));
    m_controller = std::make_unique<MvUndoController>();
    m_log.clear();
}

void tst_MvUndoController::doesAtOnceAndTakesBack()
{
    push(u"a"_s);
    push(u"b"_s);
    QCOMPARE(takeLog(), u"+a +b"_s);
    QCOMPARE(m_controller->stack()->undoText(), u"b"_s);
    for (int i = 0; i < 3; ++i)
        m_controller->undo();
    QCOMPARE(takeLog(), u"-b -a"_s);
    for (int i = 0; i < 3; ++i)
        m_controller->redo();
    QCOMPARE(takeLog(), u"+a +b"_s);
    m_controller.reset();
    QCOMPARE(m_log.size(), 2); // owned
}

void tst_MvUndoController::newStepsReplaceUndoneOnes()
{
    push(u"a"_s);
    m_controller->undo();
    push(u"b"_s);
    m_controller->redo();
    m_controller->undo();
    QCOMPARE(takeLog(), u"+a -a +b ~a -b"_s);
}

void tst_MvUndoController::childrenGoWithTheirParent()
{
    auto *parent = new TestCommand(u"parent"_s, &m_log);
    new TestCommand(u"1"_s, &m_log, parent);
    new TestCommand(u"2"_s, &m_log, parent);
    m_controller->push(parent);
    m_controller->undo();
    QCOMPARE(takeLog(), u"+parent +1 +2 -2 -1 -parent"_s);
}

void tst_MvUndoController::macros_data()
{
    // ( and ) begin and end a macro, a letter is a command
    QTest::addColumn<QString>("actions");
    QTest::addColumn<int>("steps");
    QTest::addColumn<QString>("undone");
    QTest::newRow("one step") << u"a(bc)"_s << 2 << u"-c -b"_s;
    QTest::newRow("in each other") << u"(a(b(c))d)"_s << 1 << u"-d -c -b -a"_s;
    QTest::newRow("an empty one leaves no step") << u"a()"_s << 1 << u"-a"_s;
    QTest::newRow("empty ones in each other") << u"a(())"_s << 1 << u"-a"_s;
    QTest::newRow("an empty one in a full one") << u"(()a())b"_s << 2 << u"-b"_s;
    QTest::newRow("one after an empty one") << u"()(ab)"_s << 1 << u"-b -a"_s;
}

void tst_MvUndoController::macros()
{
    QFETCH(const QString, actions);
    QFETCH(const int, steps);
    for (const QChar action : actions) {
        if (action == u'(')
            m_controller->beginMacro(u"macro"_s);
        else if (action == u')')
            m_controller->endMacro();
        else
            push(action);
    }
    QCOMPARE(m_controller->stack()->count(), steps);
    takeLog();
    m_controller->undo();
    QTEST(takeLog(), "undone");
}

void tst_MvUndoController::withoutEffectThereIsNoStep()
{
    push(u"a"_s);
    m_controller->undo();
    takeLog();
    auto *command = new TestCommand(u"none"_s, &m_log);
    command->setObsolete(true);
    m_controller->push(command);
    m_controller->push(nullptr);
    QCOMPARE(takeLog(), u"~none"_s);
    QVERIFY(m_controller->stack()->canRedo());
}

void tst_MvUndoController::undoWaitsForTheMacro()
{
    push(u"a"_s);
    m_controller->beginMacro(u"macro"_s);
    m_controller->undo();
    push(u"b"_s);
    m_controller->undo();
    m_controller->endMacro();
    QCOMPARE(takeLog(), u"+a +b"_s);
    m_controller->undo();
    QCOMPARE(takeLog(), u"-b"_s);
}

void tst_MvUndoController::clearsWithoutUndoing()
{
    push(u"a"_s);
    m_controller->beginMacro(u"macro"_s);
    m_controller->clear();
    push(u"b"_s);
    QCOMPARE(m_controller->stack()->count(), 1);
    QCOMPARE(m_controller->stack()->undoText(), u"b"_s);
    QCOMPARE(takeLog(), u"+a ~a +b"_s);
}

MV_TEST_MAIN(tst_MvUndoController)
#include "tst_MvUndoController.moc"
