#include "numeric/plain_number.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr qsizetype LongestText = 24;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool areDigits(QStringView text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), &isDigit);
}

bool areDigitsAroundAPoint(QStringView text)
{
    const qsizetype point = text.indexOf(u'.');
    return point >= 0 && areDigits(text.first(point)) && areDigits(text.sliced(point + 1));
}

template <typename Number>
std::optional<Number> numberOf(QStringView text)
{
    std::array<char, LongestText> characters{};
    std::transform(text.begin(), text.end(), characters.begin(),
                   [](QChar character) { return character.toLatin1(); });
    const char* const end = characters.data() + text.size();
    Number number{};
    const auto [rest, error] = std::from_chars(characters.data(), end, number);
    return error == std::errc() && rest == end ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<quint64> plainWholeNumber(QStringView text)
{
    return text.size() <= LongestText && areDigits(text) ? numberOf<quint64>(text) : std::nullopt;
}

std::optional<double> plainDecimal(QStringView text)
{
    const bool isPlain =
        text.size() <= LongestText && (areDigits(text) || areDigitsAroundAPoint(text));
    return isPlain ? numberOf<double>(text) : std::nullopt;
}
