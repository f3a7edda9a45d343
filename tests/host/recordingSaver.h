// A screen saver that shows nothing and writes down what is asked of it, in the place of the real one.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/screenSaverAbstract.h"

// What happened to the savers of a test, in order; the default procedure's calls among them.
struct HostRecord {
  std::vector<std::string> calls;
  std::vector<float> steps;              // of animateOneFrame
  std::vector<int> monitorIds;           // of initWithWindowHandle
  std::vector<xplWindowHandle> windows;  // of initWithWindowHandle
  std::string containerFolder;           // as initWithWindowHandle found it
  std::function<void()> duringInit;      // these run inside the operations
  std::function<void()> duringDraw;
  std::function<void()> duringFlush;
};

class RecordingSaver : public xplScreenSaverAbstract {
 public:
  explicit RecordingSaver(HostRecord& record) : m_record(record) { note("construct"); }
  ~RecordingSaver() override { note("delete"); }

  void initWithWindowHandle(xplWindowHandle window, std::int32_t monitorId) override {
    note("init");
    m_record.monitorIds.push_back(monitorId);
    m_record.windows.push_back(window);
    m_record.containerFolder = containerFolder();
    run(m_record.duringInit);
  }
  void showConfigureSheet(xplWindowHandle) override { note("configure"); }
  void animateOneFrame(float seconds) override {
    note("animate");
    m_record.steps.push_back(seconds);
  }
  void drawOneFrame() override {
    note("draw");
    run(m_record.duringDraw);
  }
  void flushOneFrame() override {
    note("flush");
    run(m_record.duringFlush);
  }
  void eraseBackground() override { note("erase"); }
  void monitorsChanged() override { note("monitors"); }
  void shutDown() override { note("shutDown"); }
  bool hasConfigureSheet() override { return m_hasSheet; }

  bool m_hasSheet = true;

 private:
  void note(const std::string& call) { m_record.calls.push_back(call); }
  static void run(const std::function<void()>& step) {
    if (step) {
      step();
    }
  }

  HostRecord& m_record;
};
