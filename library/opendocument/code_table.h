#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <optional>

namespace opendocument {

/// One row of a table that maps an attribute's values to codes.
template <class Code>
struct NamedCode
{
    QLatin1StringView name;
    Code code;
};

/// The code of a value, nothing if the table does not contain it. Case-sensitive.
template <class Code, std::size_t Size>
[[nodiscard]] std::optional<Code> codeOf(const NamedCode<Code> (&table)[Size], QStringView value)
{
    for (const NamedCode<Code>& row : table) {
        if (value == row.name) {
            return row.code;
        }
    }
    return std::nullopt;
}

} // namespace opendocument
