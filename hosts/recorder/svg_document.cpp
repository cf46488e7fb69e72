#include "recorder/svg_document.h"

#include "limits/svg/svg_sanitizer.h"

#include <QSvgRenderer>

namespace recorder {

SvgDocument::SvgDocument(const QByteArray& bytes)
{
    // The size in a trace is the one that Qt's renderer gives the document as it was written.
    const auto safe = svglimits::sanitizeSvg(bytes, svglimits::LengthUnits::AsWritten);
    QSvgRenderer renderer;
    m_valid = safe && renderer.load(safe->document());
    if (m_valid) {
        m_size = renderer.defaultSize();
    }
}

} // namespace recorder
