// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvCore/MvDirectoryConfig.h"
#include "MvPaint/MvPaintRecorder.h"
#include "MvProject/MvNewCalendar.h"
#include "MvProject/MvPageTemplateRegistry.h"
#include "MvProject/MvThemeApplication.h"
#include "MvProject/MvThemeRegistry.h"

#include <QPainter>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString ownName = u"own.xml"_s;

/// Nothing is shipped but a template of each kind, or reading them would take the time of the search.
void shipLittle(const QDir &folder)
{
    const auto write = [&folder](const QString &name, const QByteArray &content) {
        QFile file(folder.filePath(name));
        MvFuzz::check(folder.mkpath(QFileInfo(name).path()) && file.open(QIODevice::WriteOnly) &&
                          file.write(content) == content.size(),
                      "no file for what is shipped");
    };
    QByteArray templates;
    for (const char *kind : {"cover", "month", "free", "back"}) {
        templates += QByteArrayLiteral("<template id='%' kind='%' name='%'><division><photo slot='photo' rows='1-9'/>"
                                       "<calendarium slot='c' rows='10-24'/></division></template>")
                         .replace('%', kind);
    }
    write(u"templates/months.xml"_s, "<pagetemplates>" + templates + "</pagetemplates>");
    for (const QString &name : {u"templates/backs.xml"_s, u"templates/covers.xml"_s, u"templates/free.xml"_s})
        write(name, "<pagetemplates/>");
    write(u"themes/themes.xml"_s, "<calendarthemes/>");
}

void writeOwn(const QByteArray &content)
{
    for (const QString &name : {u"templates"_s, u"themes"_s}) {
        const QDir folder = MvDirectoryConfig::instance().programDataDir().filePath(name);
        QFile file(folder.filePath(ownName));
        MvFuzz::check(folder.mkpath(u"."_s) && file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
                      "no file for the input");
    }
}

QSet<QString> slotNames(const QList<MvTemplateSlot> &places)
{
    QSet<QString> names;
    for (const MvTemplateSlot &place : places) {
        const QRectF rect = place.element.rect();
        MvFuzz::check(rect.width() > 0.0 && rect.height() > 0.0, "a slot is a place");
        names.insert(place.element.slot());
    }
    MvFuzz::check(names.size() == places.size() && !names.contains(QString()), "every slot has a name of its own");
    return names;
}

void paint(const MvCalendarDocument &document)
{
    MvPaintRecorder recorder(nullptr);
    QPainter painter(&recorder);
    for (int page = 0; page < std::min<int>(3, int(document.pages().size())); ++page)
        document.paint(painter, page);
}

} // namespace

/// A file of templates or of themes: what is read divides every paper into the same slots, and can be painted.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir shipped;
    static const bool isPrepared = [] {
        shipLittle(QDir(shipped.path()));
        qputenv("MVCALENDAR_RESOURCES", shipped.path().toLocal8Bit());
        return MvPageTemplateRegistry::instance().templates().size() == 4;
    }();
    MvFuzz::check(isPrepared, "nothing else is shipped");

    writeOwn(MvFuzz::bytes(data, size));
    MvNewCalendar calendar;
    calendar.title = u"Wir"_s;
    const QList<MvPageTemplate> templates = MvPageTemplateRegistry().templates().mid(4);
    for (const MvPageTemplate &pageTemplate : templates) {
        QSet<QString> names;
        for (const QSizeF paper : {QSizeF(2970, 2100), QSizeF(2100, 2970), QSizeF(2100, 2100), QSizeF(5940, 2100),
                                   QSizeF(700, 2970), QSizeF(520, 370)}) {
            const QSet<QString> here = slotNames(pageTemplate.slotsFor(MvPageFormat(paper)));
            MvFuzz::check(names.isEmpty() || here == names, "the slots are the same on every paper");
            names = here;
        }
        MvCalendarDocument document = calendar.make();
        MvCalendarPage page = document.pages().value(1);
        page.setTemplate(pageTemplate, document.format());
        document.setPage(1, page);
        paint(document);
    }
    const QList<MvCalendarTheme> themes = MvThemeRegistry().themes();
    for (const MvCalendarTheme &theme : themes)
        paint(MvThemeApplication::applied(calendar.make(), theme));
    return 0;
}
