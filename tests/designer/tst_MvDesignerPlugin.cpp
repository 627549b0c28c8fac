// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvRows.h"
#include "MvWidgetTest.h"

#include "MvCore/MvDirectoryConfig.h"

#include <QDesignerCustomWidgetCollectionInterface>
#include <QDesignerFormEditorInterface>
#include <QUiLoader>

using namespace Qt::StringLiterals;

/// What Qt Designer and QUiLoader ask of the plug-in.
class tst_MvDesignerPlugin : public MvTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void widgets_data();
    void widgets();
    void samplesInDesignerOnly();

private:
    QDesignerCustomWidgetInterface *find(const QString &name) const;

    QDesignerCustomWidgetCollectionInterface *m_collection = nullptr;
};

void tst_MvDesignerPlugin::initTestCase()
{
    QPluginLoader loader(QStringLiteral(MV_PLUGIN));
    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    m_collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY(m_collection);
}

QDesignerCustomWidgetInterface *tst_MvDesignerPlugin::find(const QString &name) const
{
    for (QDesignerCustomWidgetInterface *widget : m_collection->customWidgets())
        if (widget->name() == name)
            return widget;
    return nullptr;
}

void tst_MvDesignerPlugin::widgets_data()
{
    const MvRows<QString> row; // name
    for (const QString &name :
         {u"MvCalendariumContentConfigEditor"_s, u"MvCalendariumColorSchemaEditor"_s, u"MvCalendariumFontEditor"_s,
          u"MvCalendariumColumnHeadersEditor"_s, u"MvCalendarEventListWidget"_s, u"MvLineEdit"_s, u"MvSpinBox"_s,
          u"MvTableView"_s, u"MvColorSelectionButton"_s, u"MvFontFamilyBox"_s})
        row(name, name);
}

void tst_MvDesignerPlugin::widgets()
{
    const auto [name] = MvRows<QString>::current();
    QDesignerCustomWidgetInterface *entry = find(name);
    QVERIFY(entry);
    QVERIFY(!entry->icon().isNull());
    QVERIFY(!entry->toolTip().isEmpty());
    QVERIFY2(QFile::exists(QStringLiteral(MV_HEADER_DIR "/") + entry->includeFile()), qPrintable(entry->includeFile()));

    // a form with what Designer would put there
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(QStringLiteral(MV_PLUGIN)).path());
    QVERIFY(loader.availableWidgets().contains(name));
    QString form = entry->domXml();
    form.replace(u"<ui language=\"c++\">"_s, u"<ui version=\"4.0\">"_s);
    QBuffer buffer;
    buffer.setData(form.toUtf8());
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> widget(loader.load(&buffer));
    QVERIFY2(widget, qPrintable(loader.errorString()));
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
    QVERIFY(!widget->objectName().isEmpty());
    QVERIFY(!widget->grab().isNull());
}

void tst_MvDesignerPlugin::samplesInDesignerOnly()
{
    const QString name = u"MvLineEdit"_s;
    const auto textOfNew = [&] {
        const std::unique_ptr<QWidget> widget(find(name)->createWidget(nullptr));
        return qobject_cast<QLineEdit *>(widget.get())->text();
    };
    const QString dataFolder = MvDirectoryConfig::instance().programDataDir().path();
    QCOMPARE(textOfNew(), QString());

    QDesignerFormEditorInterface designer;
    for (QDesignerCustomWidgetInterface *entry : m_collection->customWidgets()) {
        entry->initialize(&designer);
        const std::unique_ptr<QWidget> widget(entry->createWidget(nullptr));
        QVERIFY2(widget && !widget->grab().isNull(), qPrintable(entry->name()));
    }
    QVERIFY(!textOfNew().isEmpty());
    QVERIFY(MvDirectoryConfig::instance().programDataDir().path() != dataFolder); // the user's own stays untouched
}

MV_WIDGET_TEST_MAIN(tst_MvDesignerPlugin)
#include "tst_MvDesignerPlugin.moc"
