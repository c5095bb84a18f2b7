#include "shell/pictures.h"

#include "shell/controls.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

namespace contarello::pictures {

namespace {

constexpr int kSize = 32;

// Drawn at the size the screen shows it, and at the display's own density, so a picture stays sharp
// at any scale.
template <class Draw> QPixmap paint(Draw draw) {
    const double dpr = qApp ? qApp->devicePixelRatio() : 1.0;
    const double side = kSize * ScaleFactor();
    QPixmap pm(int(std::ceil(side * dpr)), int(std::ceil(side * dpr)));
    pm.setDevicePixelRatio(dpr);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(ScaleFactor(), ScaleFactor());
    draw(p);
    return pm;
}

void face(QPainter& p, bool smiling) {
    p.setPen(QPen(QColor(0x80, 0x60, 0x00), 1.5));
    p.setBrush(QColor(0xff, 0xdd, 0x00));
    p.drawEllipse(QRectF(1.5, 1.5, 29, 29));
    p.setBrush(Qt::black);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(9.5, 9.5, 4, 5));
    p.drawEllipse(QRectF(18.5, 9.5, 4, 5));
    p.setPen(QPen(Qt::black, 2, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(Qt::NoBrush);
    QPainterPath mouth;
    if (smiling) {
        mouth.moveTo(8.5, 18.5);
        mouth.quadTo(16, 27.5, 23.5, 18.5);
    } else {
        mouth.moveTo(9.5, 24.5);
        mouth.quadTo(16, 17.5, 22.5, 24.5);
    }
    p.drawPath(mouth);
}

} // namespace

QPixmap Disegna(const std::function<void(QPainter&)>& draw) {
    return paint(draw);
}

QPixmap FacciaSorridente() {
    return paint([](QPainter& p) { face(p, true); });
}

QPixmap FacciaTriste() {
    return paint([](QPainter& p) { face(p, false); });
}

QPixmap Freccia() {
    return paint([](QPainter& p) {
        QPolygonF arrow;
        arrow << QPointF(2, 11) << QPointF(17, 11) << QPointF(17, 3) << QPointF(30, 16) << QPointF(17, 29)
              << QPointF(17, 21) << QPointF(2, 21);
        // Bright and edged in dark blue: the arrow a child is waiting to press. Disabled, the button
        // shows it greyed.
        QLinearGradient fill(0, 3, 0, 29);
        fill.setColorAt(0, QColor(0x8c, 0xc4, 0xff));
        fill.setColorAt(1, QColor(0x1c, 0x6c, 0xe8));
        p.setPen(QPen(QColor(0x00, 0x00, 0x80), 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        p.setBrush(fill);
        p.drawPolygon(arrow);
    });
}

QPixmap ManoAlzata() {
    return paint([](QPainter& p) {
        p.setPen(QPen(QColor(0x80, 0x40, 0x20), 1.2));
        p.setBrush(QColor(0xff, 0xcc, 0x99));
        // four fingers, the thumb, then the palm over their roots
        const double fingers[4][2] = {{8, 6}, {12.5, 3}, {17, 3.5}, {21.5, 7}};
        for (const auto& f : fingers)
            p.drawRoundedRect(QRectF(f[0], f[1], 4, 15), 2, 2);
        QPainterPath thumb;
        thumb.moveTo(8, 20);
        thumb.lineTo(3, 14);
        thumb.quadTo(1.5, 12, 3.5, 11.5);
        thumb.lineTo(10, 16);
        p.drawPath(thumb);
        p.drawRoundedRect(QRectF(7.5, 14, 18.5, 15), 5, 5);
    });
}

QPixmap Avvio() {
    return paint([](QPainter& p) {
        p.setPen(QPen(QColor(0x00, 0x60, 0x00), 1.5));
        p.setBrush(QColor(0x30, 0xc0, 0x30));
        p.drawEllipse(QRectF(1.5, 1.5, 29, 29));
        p.setPen(Qt::NoPen);
        p.setBrush(Qt::white);
        p.drawPolygon(QPolygonF() << QPointF(12, 8) << QPointF(24, 16) << QPointF(12, 24));
    });
}

QPixmap Stampante() {
    return paint([](QPainter& p) {
        p.setPen(QPen(QColor(0x30, 0x30, 0x30), 1.2));
        p.setBrush(Qt::white);
        p.drawRect(QRectF(9.5, 3.5, 13, 10));
        p.setBrush(QColor(0x90, 0x90, 0xa0));
        p.drawRoundedRect(QRectF(3.5, 12.5, 25, 11), 2, 2);
        p.setBrush(Qt::white);
        p.drawRect(QRectF(9.5, 19.5, 13, 9));
        p.setPen(QPen(QColor(0x60, 0x60, 0x60), 1));
        p.drawLine(QPointF(11.5, 22.5), QPointF(20.5, 22.5));
        p.drawLine(QPointF(11.5, 25.5), QPointF(18.5, 25.5));
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0x30, 0xc0, 0x30));
        p.drawEllipse(QRectF(23, 15, 3, 3));
    });
}

QPixmap FoglioNuovo() {
    return paint([](QPainter& p) {
        p.setPen(QPen(QColor(0x30, 0x30, 0x30), 1.2));
        p.setBrush(Qt::white);
        QPolygonF sheet;
        sheet << QPointF(6.5, 2.5) << QPointF(20.5, 2.5) << QPointF(26.5, 8.5) << QPointF(26.5, 29.5)
              << QPointF(6.5, 29.5);
        p.drawPolygon(sheet);
        p.setPen(QPen(QColor(0x90, 0x90, 0x90), 1));
        for (int y = 12; y <= 26; y += 4)
            p.drawLine(QPointF(9.5, y + 0.5), QPointF(23.5, y + 0.5));
        p.setPen(QPen(QColor(0xc0, 0x80, 0x00), 1));
        p.setBrush(QColor(0xff, 0xd0, 0x00));
        QPolygonF star;
        for (int i = 0; i < 10; ++i) {
            const double r = i % 2 ? 2.5 : 6;
            const double a = -M_PI / 2 + i * M_PI / 5;
            star << QPointF(23 + r * std::cos(a), 7 + r * std::sin(a));
        }
        p.drawPolygon(star);
    });
}

QPixmap Porta() {
    return paint([](QPainter& p) {
        p.setPen(QPen(QColor(0x40, 0x20, 0x00), 1.2));
        p.setBrush(QColor(0xe8, 0xe8, 0xe8));
        p.drawRect(QRectF(7.5, 2.5, 18, 27));
        p.setBrush(QColor(0xa0, 0x60, 0x20));
        p.drawPolygon(QPolygonF() << QPointF(7.5, 2.5) << QPointF(18.5, 6.5) << QPointF(18.5, 29.5)
                                  << QPointF(7.5, 29.5));
        p.setBrush(QColor(0xff, 0xd0, 0x00));
        p.drawEllipse(QRectF(15, 15, 2.5, 2.5));
    });
}

// A green arrow turning back on itself: "start again".
QPixmap FrecciaCircolare() {
    return paint([](QPainter& p) {
        const QColor verde(0x00, 0x80, 0x00);
        p.setPen(QPen(verde, 4, Qt::SolidLine, Qt::FlatCap));
        p.drawArc(QRectF(5, 5, 22, 22), 100 * 16, 290 * 16);
        QPainterPath punta;
        punta.moveTo(11, 1);
        punta.lineTo(21, 6);
        punta.lineTo(12, 12);
        punta.closeSubpath();
        p.setPen(Qt::NoPen);
        p.setBrush(verde);
        p.drawPath(punta);
    });
}

} // namespace contarello::pictures
