#include "fields/field_problem.h"

namespace fields {

namespace {

using namespace Qt::StringLiterals;

struct FieldProblemTr
{
    Q_DECLARE_TR_FUNCTIONS(fields::FieldProblem)
};

const QString Path = u"%1"_s; // stays a placeholder until the path is known

} // namespace

MaybeProblem fieldIsMissing()
{
    return FieldProblem{{}, FieldProblemTr::tr("%1 is missing")};
}

MaybeProblem fieldIsNot(const char* kind)
{
    return FieldProblem{{}, FieldProblemTr::tr("%1 is not %2").arg(Path, FieldProblemTr::tr(kind))};
}

MaybeProblem fieldIsLonger(qsizetype limit)
{
    return FieldProblem{
        {}, FieldProblemTr::tr("%1 is longer than %2").arg(Path, QString::number(limit))};
}

} // namespace fields
