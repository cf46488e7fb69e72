#include "workbench/rendering/true_size_pdf.h"

#include <cmath>

namespace workbench {
namespace {

// QPdfWriter writes a page's dictionary in one call, with "/MediaBox [0 0 284.000000 341.000000]".
constexpr QByteArrayView PageType = "/Type /Page\n";
constexpr QByteArrayView BoxStart = "/MediaBox [";

// Left, bottom, right and top in points. The content is positioned from the upper edge, so the
// bottom takes the height that rounding has added.
QByteArray mediaBox(const QSizeF& page)
{
    const double top = std::ceil(page.height());
    const double bottom = std::round((top - page.height()) * 1000.0) / 1000.0;
    return "0 " + QByteArray::number(bottom) + ' ' + QByteArray::number(page.width(), 'f', 4) +
           ' ' + QByteArray::number(top, 'f', 0);
}

} // namespace

TrueSizePdf::TrueSizePdf(QIODevice& file, const QSizeF& page)
    : m_file(file)
    , m_page(page)
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 TrueSizePdf::readData(char* /*data*/, qint64 /*size*/)
{
    return -1;
}

qint64 TrueSizePdf::writeData(const char* data, qint64 size)
{
    const QByteArrayView given(data, size);
    if (!given.contains(PageType)) {
        return m_file.write(data, size);
    }
    // The length must not change: the cross-reference table contains byte offsets.
    QByteArray page = given.toByteArray();
    const qsizetype start = page.indexOf(BoxStart) + BoxStart.size();
    const qsizetype end = page.indexOf(']', start);
    const QByteArray box = mediaBox(m_page);
    if (start >= BoxStart.size() && end - start >= box.size()) {
        page.replace(start, end - start, box.leftJustified(end - start));
    }
    return m_file.write(page);
}

} // namespace workbench
