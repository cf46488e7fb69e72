// The reply of a worker that a hostile label has taken over. What is accepted is a file in the
// worker's folder, and it is moved to a planned place.

#include "archive/checked_result.h"
#include "fuzz/harness.h"
#include "fuzz/scratch_folder.h"

#include <QFileInfo>

namespace {
using namespace Qt::StringLiterals;

void checkReply(archive::FileResult result)
{
    writeScratch("staged.png", "x");
    const QString staging = QFileInfo(scratchPath("staged.png")).path();
    const QList<archive::PlannedFile> planned{{u"png"_s, u"/out/label.png"_s},
                                              {u"glabels"_s, u"/out/label.glabels"_s}};
    if (!archive::checkFiles(result, staging, planned)) {
        return;
    }
    for (const archive::StagedFile& file : result.files) {
        if (QFileInfo(file.staged).path() != staging ||
            QFileInfo(file.output.path).path() != "/out"_L1 ||
            !file.output.path.startsWith("/out/label"_L1) ||
            !QStringList{u"png"_s, u"glabels"_s, u"csv"_s}.contains(
                QFileInfo(file.output.path).suffix())) {
            qFatal("a reply names a file that was not asked for");
        }
    }
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    // A seed cannot know the folder.
    const QByteArray folder = QFileInfo(scratchPath("staged.png")).path().toUtf8();
    const QByteArray line = QByteArray(input).replace("STAGING", folder);
    if (const auto result = archive::resultFromLine(line)) {
        if (archive::resultFromLine(archive::lineOf(*result)) != result) {
            qFatal("a reply is written differently");
        }
        checkReply(*result);
    }
    (void)archive::jobFromLine(line);
    (void)archive::workerStartFromLine(line);
}
