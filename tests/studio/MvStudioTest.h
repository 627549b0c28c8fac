// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "MvStudioFixture.h"

#include "MvProject/MvProject.h"

/// Base of test classes in which every test has a studio of its own, from init() to cleanup().
class MvStudioTest : public MvWidgetTest
{
    Q_OBJECT

protected:
    MvStudioWindow *window() const { return m_studio->window(); }
    MvProject *project() const { return m_studio->project(); }
    QString path(const QString &name) const { return m_studio->path(name); }
    void trigger(const char *action) const { QVERIFY2(m_studio->trigger(action), action); }
    void click(QWidget *parent, const char *button) const { QVERIFY2(m_studio->click(parent, button), button); }
    template <class Dialog = QDialog>
    static Dialog *dialog(const char *name)
    {
        return MvStudioFixture::dialog<Dialog>(name);
    }

    std::unique_ptr<MvStudioFixture> m_studio;

private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_studio = std::make_unique<MvStudioFixture>();
    }
    void cleanup() { m_studio.reset(); }
};
