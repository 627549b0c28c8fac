// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvFuzz.h"

#include "MvCalendar/MvCalendariumColorSchemaRegistry.h"
#include "MvXML/MvXMLBuilder.h"
#include "MvXML/MvXMLLoader.h"

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<MvCalendariumColorSchemaRegistry> registryOf(const QByteArray &bytes)
{
    auto registry = MvCalendariumColorSchemaRegistry::createTemporaryRegistry();
    registry->read(MvXMLLoader::parse(bytes).documentElement(), SCHEMA_VISIBILITY_OFFERED);
    return registry;
}

QByteArray bytesOf(const MvCalendariumColorSchemaRegistry &registry)
{
    QDomDocument document;
    QDomElement root = MvXMLBuilder::buildRootElement(document, u"calendarschema"_s);
    registry.write(root, registry.allSchemata());
    return document.toByteArray();
}

} // namespace

/// A file of colour schemas: whatever is read can be written, and what was written is read as equal schemas. (What is
/// read first need not be: a grid that is switched off loses the colour that older files give it.)
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto first = registryOf(MvFuzz::bytes(data, size));
    const auto written = registryOf(bytesOf(*first));
    MvFuzz::check(first->allSchemata().isEmpty() == written->allSchemata().isEmpty(), "schemas can be written");
    const auto again = registryOf(bytesOf(*written));
    for (const MvCalendariumColorSchema &schema : written->allSchemata())
        MvFuzz::check(again->isRegistered(schema), "a written schema is read as an equal one");
    return 0;
}
