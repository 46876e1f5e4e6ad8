#include "plots/picture_export.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPixmap>
#include <QSvgGenerator>

#include "base/text.h"
#include "session/platform.h"
#include "session/qt_platform.h"

namespace brooklet {

std::optional<PictureFormat> PictureFormatOf(const std::string& path) {
    const std::string name = toUpper(path);
    auto endsWith = [&name](const std::string& end) {
        return name.size() >= end.size() && name.compare(name.size() - end.size(), end.size(), end) == 0;
    };
    if (endsWith(".BMP"))
        return PictureFormat::Bmp;
    if (endsWith(".PNG"))
        return PictureFormat::Png;
    if (endsWith(".SVG"))
        return PictureFormat::Svg;
    if (endsWith(".PDF"))
        return PictureFormat::Pdf;
    return std::nullopt;
}

QByteArray ImageFileBytes(const QImage& image, PictureFormat format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format == PictureFormat::Bmp ? "BMP" : "PNG");
    return buffer.data();
}

QByteArray DrawingFileBytes(PictureFormat format, QSize size, const QString& title,
                            const std::function<void(QPainter&)>& paint) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (format == PictureFormat::Svg) {
        QSvgGenerator svg;
        svg.setOutputDevice(&buffer);
        svg.setSize(size);
        svg.setViewBox(QRect(QPoint(0, 0), size));
        svg.setResolution(96);
        svg.setTitle(title);
        QPainter painter(&svg);
        paint(painter);
    } else {
        QPdfWriter pdf(&buffer);
        pdf.setResolution(96);
        pdf.setPageSize(QPageSize(QSizeF(size) * 72.0 / 96.0, QPageSize::Point));
        pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
        pdf.setTitle(title);
        QPainter painter(&pdf);
        paint(painter);
    }
    return buffer.data();
}

void CopyPictureToClipboard(Platform& platform, const QImage& picture) {
    const Bitmap bitmap = fromQImage(picture);
    platform.clearClipboard();
    platform.setClipboardBitmap(bitmap);
}

QCursor ZoomCursor(bool in) {
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 2));
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(2, 2, 18, 18));
    painter.drawLine(QPointF(17, 17), QPointF(29, 29));
    painter.drawLine(QPointF(6, 11), QPointF(16, 11));
    if (in)
        painter.drawLine(QPointF(11, 6), QPointF(11, 16));
    return QCursor(picture, 11, 11);
}

} // namespace brooklet
