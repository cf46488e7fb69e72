#include "orvanta/list_control.h"

#include "orvanta/object_fields.h"

namespace orvanta {

namespace {

void takeEntries(const QDomElement& child, FamilyCheck /*unused*/, ListControl& control)
{
    control.entries = readTexts(child);
}

constexpr Field<ListControl> ListFields[] = {
    {QLatin1String("printable_control"), takePrintableControl<ListControl>},
    {QLatin1String("ArrayOfAnyType"), takeEntries},
};

} // namespace

ListControl readListControl(const QDomElement& element, FamilyCheck isKnownFamily)
{
    ListControl control;
    readFields(element, ListFields, isKnownFamily, control);
    return control;
}

} // namespace orvanta
