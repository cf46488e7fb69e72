#include "cli/loss_summary.h"

#include "console/file_name.h"
#include "migration/model/loss_kinds.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

namespace cli {
namespace {

using namespace Qt::StringLiterals;
using migration::Verdict;

struct LossSummaryTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::LossSummary)
};

bool affectsContent(const migration::Finding& finding)
{
    const migration::LossRow* row = migration::lossRowOf(finding.code);
    return row == nullptr || row->impact == migration::Impact::Content;
}

// The loss of the most objects; lost objects before changed ones.
const migration::Finding* mostSevere(const migration::FileReport& report)
{
    const migration::Finding* found = nullptr;
    for (const QList<migration::Finding>* list : {&report.lost, &report.changed}) {
        for (const migration::Finding& finding : *list) {
            if (affectsContent(finding) && (found == nullptr || finding.count > found->count)) {
                found = &finding;
            }
        }
        if (found != nullptr) {
            break;
        }
    }
    return found;
}

} // namespace

bool LossSummary::isWorse(const Label& a, const Label& b)
{
    return a.lostObjects != b.lostObjects ? a.lostObjects > b.lostObjects : a.problems > b.problems;
}

void LossSummary::add(const migration::FileReport& report)
{
    const Verdict verdict = migration::verdictOf(report);
    ++m_counts[static_cast<std::size_t>(verdict)];
    if (verdict != Verdict::Lossy) {
        return;
    }
    Label label;
    label.lostObjects = migration::objectsLost(report);
    for (const QList<migration::Finding>* list : {&report.lost, &report.changed}) {
        for (const migration::Finding& finding : *list) {
            label.problems += affectsContent(finding) ? finding.count : 0;
        }
    }
    const migration::Finding* const loss = mostSevere(report);
    label.text = report.file + u": "_s + migration::countSentence(report) +
                 (loss != nullptr ? u' ' + loss->text : QString());
    m_worst.insert(std::upper_bound(m_worst.begin(), m_worst.end(), label, isWorse), label);
    if (!m_namesAll && m_worst.size() > WorstLabels) {
        m_worst.removeLast();
    }
}

qint64 LossSummary::count(Verdict verdict) const
{
    return m_counts[static_cast<std::size_t>(verdict)];
}

bool LossSummary::isComplete() const
{
    return std::accumulate(m_counts.begin(), m_counts.end(), qint64(0)) == count(Verdict::Complete);
}

QString LossSummary::counts() const
{
    return LossSummaryTr::tr(
               "Labels imported completely: %1, with changes: %2, with losses: %3, failed: %4.")
        .arg(count(Verdict::Complete))
        .arg(count(Verdict::Changed))
        .arg(count(Verdict::Lossy))
        .arg(count(Verdict::Failed));
}

QStringList LossSummary::worst() const
{
    QStringList lines;
    for (const Label& label : m_worst) {
        lines.append(u"  "_s + label.text);
    }
    return lines;
}

QString LossSummary::hint(const QStringList& reports) const
{
    if (isComplete() || (count(Verdict::Changed) == 0 && count(Verdict::Lossy) == 0)) {
        return {};
    }
    if (!reports.isEmpty()) {
        return LossSummaryTr::tr("All details: %1")
            .arg(console::shownFileName(reports.constFirst()));
    }
    return LossSummaryTr::tr(
        "All details: add --report report.html, or run labelport inspect on a file.");
}

} // namespace cli
