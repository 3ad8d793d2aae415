#ifndef BENCH_PEERS_QT_SCENE_H
#define BENCH_PEERS_QT_SCENE_H

#include <QApplication>
#include <QFont>
#include <QMouseEvent>
#include <QPushButton>
#include <QWidget>
#include <QWindow>

#include "layout.h"

// The grid in Qt Widgets.
namespace qt_scene {

class Button : public QPushButton {
  public:
    using QPushButton::QPushButton;
    long* drawn = nullptr;

  protected:
    // The style's hover look is painted at once. Left alone, Qt collects the repaints for 5 ms and would
    // paint fewer of them than the work asks.
    bool event(QEvent* event) override {
        const bool known = QPushButton::event(event);
        if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) repaint();
        return known;
    }
    void paintEvent(QPaintEvent* event) override {
        ++*drawn;
        QPushButton::paintEvent(event);
    }
};

class Window : public QWidget {
  public:
    Window() {
        setFixedSize(layout::window_width, layout::window_height);
        QFont font(QString::fromLatin1(layout::family));
        font.setPixelSize(layout::text_pixels);
        for (int i = 0; i < layout::count; i++) {
            const layout::Place at = layout::corner(i);
            Button* button = new Button(QString::fromLatin1(layout::label(i).text), this);
            button->drawn = &drawn;
            button->setFont(font);
            button->setGeometry(at.x, at.y, layout::button_width, layout::button_height);
        }
    }
    // As the platform's plug-in delivers it: Qt finds the widget, sends leave and enter.
    void move(layout::Place place) {
        const QPointF at(place.x, place.y);
        QMouseEvent event(QEvent::MouseMove, at, at, at, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(windowHandle(), &event);
    }

    long drawn = 0; // buttons painted
};

} // namespace qt_scene

#endif
