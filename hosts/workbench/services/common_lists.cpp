#include "host/services/common_lists.h"

#include "workbench/barcodes/symbologies.h"
#include "workbench/items/font_families.h"

#include <QFontDatabase>
#include <QStringList>

bool CommonLists::isValidFamily(QString family)
{
    if (family.isEmpty()) {
        return false;
    }
    const QStringList families = QFontDatabase::families();
    return families.contains(family) || families.contains(workbench::substituteFamily(family));
}

bool CommonLists::isValidBarcode1D(unsigned short code)
{
    return workbench::barcodes::isLinear(code);
}

bool CommonLists::isValidBarcode2D(unsigned short code)
{
    return workbench::barcodes::isMatrix(code);
}
