// The corpus of a fuzz target, run once through it in the ordinary build,
// so that a regression shows without clang: each argument is a file or a
// folder of files.
#include <QDirIterator>
#include <QFileInfo>
#include <cstdio>
#include "fuzzfolder.h"

int main(int argc, char** argv) {
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        QStringList files;
        if (QFileInfo(argv[i]).isDir()) {
            for (QDirIterator it(argv[i], QDir::Files | QDir::Hidden); it.hasNext();) files << it.next();
        } else {
            files << argv[i];
        }
        files.sort();
        for (const QString& path : files) {
            QFile f(path);
            if (!f.open(QIODevice::ReadOnly)) return 2;
            const QByteArray bytes = f.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs run\n", inputs);
    return inputs > 0 ? 0 : 1;
}
