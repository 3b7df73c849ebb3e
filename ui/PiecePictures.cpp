#include "ui/PiecePictures.h"

#include <QImageReader>
#include <QPainter>

#include "records/TextFile.h"
#include "ui/ColourValue.h"

namespace jv::ui {

QImage ReadPicture(const std::string& path) {
    QImageReader reader(QString::fromStdString(path));
    // An icon file holds several sizes; take the largest.
    QImage best;
    do {
        QImage image = reader.read();
        if (!image.isNull() && image.width() * image.height() > best.width() * best.height())
            best = image;
    } while (reader.jumpToNextImage());
    if (best.isNull()) return best;
    const bool keyed = !best.hasAlphaChannel();
    best = best.convertToFormat(QImage::Format_ARGB32);
    if (keyed) {
        const QRgb key = best.pixel(0, 0);
        for (int y = 0; y < best.height(); ++y) {
            auto* line = reinterpret_cast<QRgb*>(best.scanLine(y));
            for (int x = 0; x < best.width(); ++x)
                if (line[x] == key) line[x] = qRgba(0, 0, 0, 0);
        }
    }
    return best.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage FallbackPicture(const QColor& colour) {
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(colour.darker(160), 3));
    p.setBrush(colour);
    p.drawEllipse(QRectF(4, 4, 56, 56));
    return image;
}

void PiecePictures::Load(const Game& g) {
    for (int code = 0; code < 4; ++code) {
        const std::string path = InProgramFolder(g, g.PictureFiles[code]);
        if (path == paths_[code] && !source_[code].isNull()) continue;
        paths_[code] = path;
        QImage image = ReadPicture(path);
        loaded_[code] = !image.isNull();
        source_[code] = loaded_[code] ? image : FallbackPicture(ToQColor(g.PieceColours[code]));
        scaled_[code] = QImage();
    }
}

const QImage& PiecePictures::Picture(int code, QSize size) {
    const int i = Index(code);
    if (source_[i].isNull()) source_[i] = FallbackPicture(Qt::gray);
    if (scaled_[i].size() != size && size.isValid() && !size.isEmpty())
        scaled_[i] = source_[i].scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return scaled_[i];
}

}  // namespace jv::ui
