#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>

#include <cstdio>

#include "pages/luminaire/LuminousShapes.h"
#include "pages/luminaire/ShapeSketchView.h"

// Draws the sketch of every luminous shape, as page 1 shows it, into FOLDER/shape-01.png ... shape-15.png.

namespace {

constexpr QSize kSize{200, 150};
constexpr int kGreys = 16;

/// The sketch is black on white: a palette of few greys makes a small file.
QImage inGreys(const QImage &picture)
{
    QImage grey(picture.size(), QImage::Format_Indexed8);
    for (int level = 0; level < kGreys; ++level) {
        const int value = level * 255 / (kGreys - 1);
        grey.setColor(level, qRgb(value, value, value));
    }
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            grey.setPixel(x, y, static_cast<uint>((qGray(picture.pixel(x, y)) * (kGreys - 1) + 127) / 255));
    return grey;
}

bool draw(int position, const QString &path)
{
    penwright::ShapeSketchView view;
    view.setShape(position);
    view.resize(kSize);
    QImage picture(kSize, QImage::Format_RGB32);
    picture.fill(Qt::white);
    view.render(&picture);
    return inGreys(picture).save(path, "PNG");
}

}  // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QFont font("DejaVu Sans");
    font.setPixelSize(12);
    QApplication::setFont(font);
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Mid, QColor(190, 190, 190));
    QApplication::setPalette(palette);
    if (argc != 2) {
        std::fprintf(stderr, "usage: sketches FOLDER\n");
        return 2;
    }
    for (int position = 0; penwright::luminousShapeAt(position); ++position) {
        const QString name = QString("shape-%1.png").arg(position + 1, 2, 10, QChar('0'));
        if (!draw(position, QDir(argv[1]).filePath(name))) {
            std::fprintf(stderr, "sketches: cannot write %s\n", qPrintable(name));
            return 1;
        }
    }
    return 0;
}
