#include "host/services/common_lists.h"

#include "recorder/recording.h"

#include <QLatin1String>

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

// Fixed lists, whatever fonts and symbologies the machine has.

namespace {

constexpr QLatin1String Families[] = {
    QLatin1String("Arial"),
    QLatin1String("Courier New"),
    QLatin1String("Times New Roman"),
    QLatin1String("Liberation Sans"),
    QLatin1String("Liberation Serif"),
    QLatin1String("Liberation Mono"),
    QLatin1String("DejaVu Sans"),
};

struct CodeRange
{
    unsigned short first;
    unsigned short last;
};

constexpr CodeRange LinearCodes[] = {
    {1, 4},   {6, 9},   {13, 14}, {16, 16}, {18, 18}, {20, 25}, {28, 34}, {37, 37},
    {40, 40}, {47, 47}, {49, 53}, {60, 60}, {63, 63}, {66, 70}, {72, 72}, {75, 77},
};

constexpr CodeRange TwoDimensionalCodes[] = {
    {55, 58}, {71, 71}, {74, 74}, {84, 84}, {92, 92}, {97, 97}, {104, 104}, {115, 116}, {142, 142},
};

template <std::size_t Size>
bool contains(const CodeRange (&ranges)[Size], unsigned short code)
{
    return std::any_of(std::begin(ranges), std::end(ranges), [code](const CodeRange& range) {
        return code >= range.first && code <= range.last;
    });
}

template <typename Argument>
bool recorded(const char* call, const Argument& argument, bool answer)
{
    if (const auto recording = recorder::Recording::current()) {
        recording->answer(answer, u"lists"_s, call, argument);
    }
    return answer;
}

} // namespace

bool CommonLists::isValidFamily(QString family)
{
    const bool known =
        std::find(std::begin(Families), std::end(Families), family) != std::end(Families);
    return recorded("isValidFamily", family, known);
}

bool CommonLists::isValidBarcode1D(unsigned short code)
{
    return recorded("isValidBarcode1D", code, contains(LinearCodes, code));
}

bool CommonLists::isValidBarcode2D(unsigned short code)
{
    return recorded("isValidBarcode2D", code, contains(TwoDimensionalCodes, code));
}
