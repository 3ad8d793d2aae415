#ifndef GALLERY_TRACES_H
#define GALLERY_TRACES_H

#include <string>
#include <vector>

// The library's trace lines: printed on the standard output, or collected to be shown, or both.

void traces_print(bool on);
void traces_collect(bool on);
bool traces_collected(); // whether they are
// What was collected since the last time, at most the last 1000 lines.
std::vector<std::wstring> traces_take();

// While one of these lives nothing is collected: for what shows the lines itself.
class TracesHush {
  public:
    TracesHush();
    ~TracesHush();
    TracesHush(const TracesHush&) = delete;
    TracesHush& operator=(const TracesHush&) = delete;
};

#endif
