#include "workbench/document/field_words.h"

namespace workbench::document {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(workbench::FieldWords)
};

const QString Path = QStringLiteral("%1"); // keeps its place until the path is known

} // namespace

MaybeProblem fieldIsMissing()
{
    return FieldProblem{{}, Words::tr("%1 is missing")};
}

MaybeProblem fieldIsNot(const char* kind)
{
    return FieldProblem{{}, Words::tr("%1 is not %2").arg(Path, Words::tr(kind))};
}

MaybeProblem fieldIsLonger(qsizetype limit)
{
    return FieldProblem{{}, Words::tr("%1 is longer than %2").arg(Path, QString::number(limit))};
}

} // namespace workbench::document
