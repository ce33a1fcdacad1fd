// SPDX-License-Identifier: GPL-3.0-or-later
#include "AppIcon.h"

#include <QPixmap>
#include <QResource>

#include <cstring>

using namespace Qt::StringLiterals;

QIcon appIcon()
{
    Q_INIT_RESOURCE(icon);
    QIcon icon;
    for (const int size : {16, 32, 64}) {
        const QResource pixels(u":/icon/%1"_s.arg(size));
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        Q_ASSERT(pixels.size() == image.sizeInBytes());
        std::memcpy(image.bits(), pixels.data(), static_cast<std::size_t>(image.sizeInBytes()));
        icon.addPixmap(QPixmap::fromImage(std::move(image)));
    }
    return icon;
}
