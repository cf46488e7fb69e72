// Runs a fuzz target on files and folders of inputs, without a fuzzer. Prints the number of
// inputs; fails if there are none.

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

bool replayFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(file.errorString()));
        return false;
    }
    const QByteArray bytes = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                           std::size_t(bytes.size()));
    return true;
}

QStringList filesOf(const QString& path)
{
    if (!QFileInfo(path).isDir()) {
        return {path};
    }
    QStringList files;
    QDirIterator walk(path, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        files.append(walk.next());
    }
    files.sort();
    return files;
}

} // namespace

int main(int argc, char** argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int count = 0;
    for (int index = 1; index < argc; ++index) {
        for (const QString& path : filesOf(QFile::decodeName(argv[index]))) {
            if (!replayFile(path)) {
                return 1;
            }
            ++count;
        }
    }
    std::printf("replayed %d inputs\n", count);
    return count > 0 ? 0 : 1;
}
