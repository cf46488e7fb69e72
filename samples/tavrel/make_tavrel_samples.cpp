// Writes the sample labels into a folder: make_tavrel_samples FOLDER

#include "samples/tavrel/sample_labels.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        QTextStream(stderr) << QStringLiteral("usage: make_tavrel_samples FOLDER") << Qt::endl;
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    for (const SampleLabel& label : sampleLabels()) {
        QFile file(folder.filePath(label.fileName));
        if (!file.open(QIODevice::WriteOnly) || file.write(label.content) != label.content.size() ||
            !file.flush()) {
            QTextStream(stderr) << file.fileName() << QStringLiteral(": ") << file.errorString()
                                << Qt::endl;
            return 1;
        }
    }
    return 0;
}
