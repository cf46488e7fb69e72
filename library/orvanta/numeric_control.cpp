#include "orvanta/numeric_control.h"

#include "orvanta/object_fields.h"

namespace orvanta {

namespace {

void takeReadOnly(const QDomElement& child, FamilyCheck /*unused*/, NumericControl& control)
{
    control.readOnly = readFlag(child);
}

void takeMinimum(const QDomElement& child, FamilyCheck /*unused*/, NumericControl& control)
{
    control.minimum = readInteger(child);
}

void takeMaximum(const QDomElement& child, FamilyCheck /*unused*/, NumericControl& control)
{
    control.maximum = readInteger(child);
}

void takeIncrement(const QDomElement& child, FamilyCheck /*unused*/, NumericControl& control)
{
    control.increment = readInteger(child);
}

// The misspelt "incrememnt" is the name in the files; "increment" is not one of them. Old
// labels depend on it.
constexpr Field<NumericControl> NumericFields[] = {
    {QLatin1String("printable_control"), takePrintableControl<NumericControl>},
    {QLatin1String("read_only"), takeReadOnly},
    {QLatin1String("minimum"), takeMinimum},
    {QLatin1String("maximum"), takeMaximum},
    {QLatin1String("incrememnt"), takeIncrement},
};

} // namespace

NumericControl readNumericControl(const QDomElement& element, FamilyCheck isKnownFamily)
{
    NumericControl control;
    readFields(element, NumericFields, isKnownFamily, control);
    return control;
}

} // namespace orvanta
