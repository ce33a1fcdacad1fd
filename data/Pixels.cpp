// SPDX-License-Identifier: GPL-3.0-or-later
#include <QFile>
#include <QImage>

#include <cstdlib>

// Pixels <picture> <file>: writes the bare pixels of a picture, as the program holds them in memory.
int main(int argc, char* argv[])
{
    if (argc != 3)
        return EXIT_FAILURE;
    const QImage picture = QImage(QFile::decodeName(argv[1])).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QFile file(QFile::decodeName(argv[2]));
    const auto* pixels = reinterpret_cast<const char*>(picture.constBits());
    const bool isWritten = !picture.isNull() && file.open(QFile::WriteOnly) &&
                           file.write(pixels, picture.sizeInBytes()) == picture.sizeInBytes() && file.flush();
    return isWritten ? EXIT_SUCCESS : EXIT_FAILURE;
}
