// The same console with Qt 6 Widgets on its off-screen platform: its plain text edit, which is its widget for
// logs, and a line edit for what is typed.

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QWheelEvent>

#include "busy.h"
#include "console_layout.h"
#include "layout.h"

namespace {

QFont font() {
    QFont font(QString::fromLatin1(layout::family));
    font.setPixelSize(console_layout::text_pixels);
    return font;
}

class Log : public QPlainTextEdit {
  public:
    Log() {
        setFixedSize(console_layout::width, console_layout::height);
        setFont(font());
        setReadOnly(true);
        setUndoRedoEnabled(false);
        setLineWrapMode(NoWrap);
        setMaximumBlockCount(console_layout::kept);
    }
    void write(long number) { appendPlainText(QString::fromLatin1(console_layout::line(number).text)); }
    void fill() {
        for (long i = 0; i < console_layout::lines; i++)
            write(i);
    }
    // As the platform's plug-in delivers it; painted at once: Qt would collect repaints.
    void turn(bool up) {
        const QPointF at(100, 100);
        QWheelEvent event(at, at, QPoint(), QPoint(0, up ? 120 : -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(viewport(), &event);
        paint();
    }
    // What the widget wants to have painted, at once: the rectangle only asks for it.
    void paint() { viewport()->repaint(0, 0, 1, 1); }
    long painted = 0;

  protected:
    void paintEvent(QPaintEvent* event) override {
        painted++;
        QPlainTextEdit::paintEvent(event);
    }
};

void open(QWidget& widget) {
    widget.show();
    QCoreApplication::processEvents();
}

void lines_painted(benchmark::State& state) {
    Log log;
    open(log);
    log.painted = 0;
    long number = 0;
    busy::measure(state, 1, [&] {
        log.write(number++);
        log.paint();
    });
    if (log.painted < state.iterations()) state.SkipWithError("each line has to be painted");
}
BENCHMARK(lines_painted)->Iterations(console_layout::lines)->UseManualTime();

void lines_hidden(benchmark::State& state) {
    Log log;
    long number = 0;
    busy::measure(state, 1, [&] { log.write(number++); });
}
BENCHMARK(lines_hidden)->Iterations(console_layout::lines)->UseManualTime();

void wheel_steps(benchmark::State& state) {
    Log log;
    log.fill();
    open(log);
    log.painted = 0;
    long step = 0;
    busy::measure(state, 1, [&] { log.turn(console_layout::goes_up(step++)); });
    if (log.painted < state.iterations()) state.SkipWithError("each step has to be painted");
}
BENCHMARK(wheel_steps)->UseManualTime();

void keys_typed(benchmark::State& state) {
    QLineEdit edit;
    edit.setFixedSize(console_layout::width, 2 * console_layout::text_pixels);
    edit.setFont(font());
    open(edit);
    edit.setFocus();
    long step = 0;
    busy::measure(state, 1, [&] {
        const char typed = console_layout::typed(step++);
        QKeyEvent event(QEvent::KeyPress, typed ? Qt::Key_A + typed - 'a' : Qt::Key_Backspace, Qt::NoModifier,
                        typed ? QString(QChar(QLatin1Char(typed))) : QString());
        QCoreApplication::sendEvent(&edit, &event);
        edit.repaint();
    });
    if (edit.text().size() != (step % 120 < 60 ? step % 120 : 120 - step % 120))
        state.SkipWithError("not all of it was typed");
}
BENCHMARK(keys_typed)->UseManualTime();

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
