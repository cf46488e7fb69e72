// The list of a part of an archive. Outputs stay below the output folder, whatever the list states.

#include "archive/prepared_list.h"
#include "fuzz/harness.h"

#include <QBuffer>
#include <QDir>

namespace {
using namespace Qt::StringLiterals;

void checkOutput(const QString& output)
{
    const QString path = QDir::cleanPath(u"/out/"_s + output);
    if (!path.startsWith("/out/"_L1)) {
        qFatal("an output leaves the output folder");
    }
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    QByteArray bytes = input;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    (void)archive::isPreparedList(buffer.peek(archive::PreparedListStart));
    QString error;
    const archive::PreparedList list = archive::readPreparedList(buffer, error);
    if (list.inputs.size() != list.names.size() || (!error.isEmpty() && !list.inputs.isEmpty())) {
        qFatal("a list is read in part");
    }
    const archive::OutputNames names(list.inputs, {u"png"_s}, list.names);
    for (qsizetype index = 0; index < list.inputs.size(); ++index) {
        checkOutput(names.output(index, u"png"_s));
        checkOutput(names.output(index, u"x"_s + names.pageMark(index) + u"2.png"_s));
    }
}
