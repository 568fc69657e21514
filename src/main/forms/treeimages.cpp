#include "main/forms/treeimages.h"

#include <QApplication>
#include <QHash>
#include <QPointer>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QStyle>

namespace {
// An address book, drawn here for a desktop whose icon theme has none: a
// red cover over white pages, rings at the spine and a person on the cover.
QPixmap DrawnAddressBook(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 16.0, size / 16.0);
    p.setPen(QPen(QColor(0x55, 0x55, 0x55), 1));
    p.setBrush(QColor(0xfb, 0xfb, 0xf4));
    p.drawRect(QRectF(4.5, 1.5, 10, 13));  // the pages, showing at the right
    p.setBrush(QColor(0xb8, 0x3b, 0x2c));
    p.drawRoundedRect(QRectF(2.5, 1.5, 10, 13), 1, 1);  // the cover
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xff, 0xe9, 0xc4));
    p.drawEllipse(QRectF(6, 4, 3.5, 3.5));       // head
    p.drawChord(QRectF(4.6, 8, 6.3, 6), 0, 180 * 16);  // shoulders
    p.setPen(QPen(QColor(0x33, 0x33, 0x33), 1.2));
    for (qreal y : {4.0, 8.0, 12.0}) p.drawLine(QPointF(1.5, y), QPointF(3.8, y));  // rings
    return pixmap;
}

QIcon DrawnAddressBook() {
    QIcon icon;
    for (int size : {16, 22, 24, 32}) icon.addPixmap(DrawnAddressBook(size));
    return icon;
}

bool SamePicture(const QIcon& a, const QIcon& b) {
    const auto image = [](const QIcon& icon) { return icon.pixmap(16).toImage().convertToFormat(QImage::Format_ARGB32); };
    return image(a) == image(b);
}
}  // namespace

QIcon TreeImage(int index) {
    QStyle* style = QApplication::style();
    if (index == 1) return style->standardIcon(QStyle::SP_DirClosedIcon);
    if (index == 2) return style->standardIcon(QStyle::SP_DirOpenIcon);
    // The root: the theme's address book, unless the theme has none or draws
    // it as one of the category pictures, or only in a format this Qt can't
    // read (a theme of SVG alone), so that the root always stands out.
    const QIcon book = QIcon::fromTheme(QStringLiteral("x-office-address-book"));
    if (!book.isNull() && !book.pixmap(16).isNull() && !SamePicture(book, TreeImage(1)) && !SamePicture(book, TreeImage(2))) return book;
    return DrawnAddressBook();
}

QIcon NodeIcon(int image, int selectedImage) {
    static QPointer<QStyle> madeFor;
    static QHash<int, QIcon> icons;
    if (madeFor != QApplication::style()) {
        icons.clear();
        madeFor = QApplication::style();
    }
    const int key = image * 16 + selectedImage;
    auto found = icons.constFind(key);
    if (found != icons.constEnd()) return *found;
    QIcon icon;
    icon.addPixmap(TreeImage(image).pixmap(16, 16), QIcon::Normal);
    icon.addPixmap(TreeImage(selectedImage).pixmap(16, 16), QIcon::Selected);
    return icons.insert(key, icon).value();
}
