// Renders the program's icon, drawn once as SVG, into the PNG sizes of the desktop's icon theme,
// so the pictures of every size come from the one drawing.
// Usage: brooklet_render_icon ICON.svg OUTPUT-FOLDER SIZE...
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc < 4) {
        std::fprintf(stderr, "usage: %s ICON.svg OUTPUT-FOLDER SIZE...\n", argv[0]);
        return 2;
    }
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "%s: not a picture that can be drawn\n", argv[1]);
        return 1;
    }
    const QString folder = QString::fromLocal8Bit(argv[2]);
    for (int i = 3; i < argc; ++i) {
        const int size = QString(argv[i]).toInt();
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter);
        painter.end();
        const QString file = QString("%1/%2.png").arg(folder).arg(size);
        if (!image.save(file)) {
            std::fprintf(stderr, "%s: could not be written\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
