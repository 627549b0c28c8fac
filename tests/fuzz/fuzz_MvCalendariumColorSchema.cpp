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

} // namespace

/// A file of colour schemas: whatever is read can be written, and read again as equal schemas.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto registry = registryOf(MvFuzz::bytes(data, size));
    if (registry->allSchemata().isEmpty())
        return 0;
    QDomDocument document;
    QDomElement root = MvXMLBuilder::buildRootElement(document, u"calendarschema"_s);
    registry->write(root, registry->allSchemata());
    const auto again = registryOf(document.toByteArray());
    for (const MvCalendariumColorSchema &schema : registry->allSchemata())
        MvFuzz::check(again->isRegistered(schema), "a written schema is read as an equal one");
    return 0;
}
