#include "exporting/export_findings.h"

#include "workbench/items/shape_kinds.h"

#include <QCoreApplication>

#include <algorithm>

namespace exporting {

using namespace Qt::StringLiterals;

namespace {

struct ExportFindingsTr
{
    Q_DECLARE_TR_FUNCTIONS(exporting::ExportFindings)
};

} // namespace

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

QString describe(const ExportFinding& finding)
{
    const bool isLabel = finding.kind == "label"_L1;
    const QString kind =
        isLabel ? ExportFindingsTr::tr("Label") : workbench::shapeTitle(finding.kind);
    const QString counted = finding.count == 1 ? kind : u"%1 × %2"_s.arg(finding.count).arg(kind);
    switch (finding.fidelity) {
    case Fidelity::Exact:
        return ExportFindingsTr::tr("%1: exact").arg(counted);
    case Fidelity::Picture:
        return ExportFindingsTr::tr("%1: became a picture. %2").arg(counted, finding.text);
    case Fidelity::Simplified:
        break;
    }
    return ExportFindingsTr::tr("%1: simplified. %2").arg(counted, finding.text);
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
