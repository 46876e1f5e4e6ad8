#pragma once
// What the plot window and the schematic share to hand a picture on: the copy to the clipboard,
// the file formats of Save As (pixels as BMP or PNG, or a drawing of lines and text as SVG or
// PDF, painted by the window's own drawing routine), and the cursor of the zoom tools.
#include <QByteArray>
#include <QCursor>
#include <QSize>
#include <QString>

#include <functional>
#include <optional>
#include <string>

class QImage;
class QPainter;

namespace brooklet {

class Platform;

enum class PictureFormat { Bmp, Png, Svg, Pdf };

// The format a file name's extension names, whatever its case; nothing for another extension.
std::optional<PictureFormat> PictureFormatOf(const std::string& path);

// The picture as the bytes of a BMP or PNG file.
QByteArray ImageFileBytes(const QImage& image, PictureFormat format);
// A drawing of the given size in pixels as the bytes of an SVG file or a one-page PDF file: the
// paint routine draws lines, shapes and text, which stay lines, shapes and text.
QByteArray DrawingFileBytes(PictureFormat format, QSize size, const QString& title,
                            const std::function<void(QPainter&)>& paint);

// CopyPictureToClipboard: the clipboard emptied, then given the picture.
void CopyPictureToClipboard(Platform& platform, const QImage& picture);

// The cursor of a zoom tool: a magnifier with a plus or a minus.
QCursor ZoomCursor(bool in);

} // namespace brooklet
