// Paints saved labels to a picture: painting must end for all values of the items.

#include "fuzz/harness.h"
#include "workbench/document/label_file.h"
#include "workbench/rendering/page_image.h"

#include <algorithm>

using namespace workbench;

namespace {

// Keeps the picture small for any page size.
double resolutionFor(const QSizeF& page)
{
    constexpr double pointsPerInch = 72.0;
    constexpr double side = 200.0;
    return std::min(pointsPerInch, pointsPerInch * side / std::max(page.width(), page.height()));
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    const MemoryFile file(input);
    Canvas canvas;
    datasources::DatasourceController sources;
    if (document::openLabel(file.path(), canvas, sources).isEmpty()) {
        (void)renderPage(canvas, resolutionFor(canvas.page().size));
    }
}
