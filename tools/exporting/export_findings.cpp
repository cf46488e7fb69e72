#include "exporting/export_findings.h"

#include <algorithm>

namespace exporting {

void ExportFindings::add(Fidelity fidelity, const QString& kind, const QString& text)
{
    const auto same = std::find_if(m_all.begin(), m_all.end(), [&](const ExportFinding& each) {
        return each.fidelity == fidelity && each.kind == kind && each.text == text;
    });
    if (same != m_all.end()) {
        ++same->count;
    } else {
        m_all.append({fidelity, kind, text, 1});
    }
}

} // namespace exporting
