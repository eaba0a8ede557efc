// types_by_qt FILE...: what Qt takes each file for, a line each, after the types of XDG_DATA_DIRS.
#include <QFile>
#include <QMimeDatabase>
#include <cstdio>

int main(int argc, char** argv)
{
    const QMimeDatabase types;
    for (int i = 1; i < argc; ++i)
        std::puts(qPrintable(types.mimeTypeForFile(QFile::decodeName(argv[i])).name()));
}
