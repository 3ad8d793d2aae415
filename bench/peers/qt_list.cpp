// The list with Qt 6 Widgets on its off-screen platform: a list view over a model, told that all rows are
// equally high. The scroll bar is moved by one row; then either the view paints what Qt itself asks for, at
// once, or (the repaint) the whole view.

#include <QApplication>
#include <QFont>
#include <QListView>
#include <QScrollBar>
#include <QStringListModel>

#include "busy.h"
#include "layout.h"

namespace {

class View : public QListView {
  public:
    View() {
        setFixedSize(layout::list_width, layout::list_height);
        QFont font(QString::fromLatin1(layout::family));
        font.setPixelSize(layout::text_pixels);
        setFont(font);
        setUniformItemSizes(true);
        setSpacing(0);
        QStringList rows;
        for (int i = 0; i < layout::list_rows; i++)
            rows.append(QString::fromLatin1(layout::row_label(i).text));
        model.setStringList(rows);
        setModel(&model);
    }
    long painted = 0;

  protected:
    void paintEvent(QPaintEvent* event) override {
        painted++;
        QListView::paintEvent(event);
    }

  private:
    QStringListModel model;
};

View* view;

template <typename Paint>
void scroll(benchmark::State& state, Paint paint) {
    long step = 0;
    view->verticalScrollBar()->setValue(layout::top_row(0));
    view->repaint();
    view->painted = 0;
    busy::measure(state, 1, [&] {
        view->verticalScrollBar()->setValue(layout::top_row(++step));
        paint();
    });
    if (view->verticalScrollBar()->value() != layout::top_row(step))
        state.SkipWithError("the list has to scroll");
    if (view->painted < step) state.SkipWithError("each step has to be painted");
}

void list_scroll(benchmark::State& state) {
    scroll(state, [] {
        QEvent request(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(view, &request);
    });
}
BENCHMARK(list_scroll)->UseManualTime();

void list_repaint(benchmark::State& state) {
    scroll(state, [] { view->viewport()->repaint(); });
}
BENCHMARK(list_repaint)->UseManualTime();

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    View shown;
    view = &shown;
    shown.show();
    QCoreApplication::processEvents();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
