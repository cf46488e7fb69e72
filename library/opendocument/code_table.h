#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <optional>

namespace opendocument {

/// One row of a table that gives an attribute's values their codes.
template <class Code>
struct NamedCode
{
    QLatin1StringView name;
    Code code;
};

/// The code of a value, nothing when the table does not have it. Compares exactly.
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
