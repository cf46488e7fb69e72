#include "host/services/common_lists.h"

#include "workbench/items/font_families.h"

#include <QFontDatabase>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<unsigned short, 47> kLinear{
    1,  2,  3,  4,  6,  7,  8,  9,  13, 14, 16, 18, 20, 21, 22, 23, 24, 25, 28, 29, 30, 31, 32, 33,
    34, 37, 40, 47, 49, 50, 51, 52, 53, 60, 63, 66, 67, 68, 69, 70, 72, 75, 76, 77, 79, 80, 81};
constexpr std::array<unsigned short, 13> kMatrix{55, 56, 57,  58,  71,  74, 84,
                                                 92, 97, 104, 115, 116, 142};

template <std::size_t Size>
bool holds(const std::array<unsigned short, Size>& list, unsigned short code)
{
    return std::find(list.begin(), list.end(), code) != list.end();
}

} // namespace

bool CommonLists::isValidFamily(QString family)
{
    if (family.isEmpty()) {
        return false;
    }
    const QStringList families = QFontDatabase::families();
    return families.contains(family) || families.contains(workbench::standInFamily(family));
}

bool CommonLists::isValidBarcode1D(unsigned short code)
{
    return holds(kLinear, code);
}

bool CommonLists::isValidBarcode2D(unsigned short code)
{
    return holds(kMatrix, code);
}
