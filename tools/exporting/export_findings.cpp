#include "exporting/export_findings.h"

#include <algorithm>

namespace exporting {

using namespace Qt::StringLiterals;

QString nameOf(Fidelity fidelity)
{
    switch (fidelity) {
    case Fidelity::Exact:
        return u"exact"_s;
    case Fidelity::Picture:
        return u"picture"_s;
    case Fidelity::Simplified:
        break;
    }
    return u"simplified"_s;
}

void ExportFindings::add(const ExportFinding& finding)
{
    const auto same = std::find_if(m_all.begin(), m_all.end(), [&](const ExportFinding& each) {
        return each.fidelity == finding.fidelity && each.kind == finding.kind &&
               each.text == finding.text;
    });
    if (same != m_all.end()) {
        same->count += finding.count;
    } else {
        m_all.append(finding);
    }
}

void ExportFindings::add(const ExportFindings& others)
{
    for (const ExportFinding& finding : others.all()) {
        add(finding);
    }
}

} // namespace exporting
