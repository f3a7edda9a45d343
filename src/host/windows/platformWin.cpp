// Supplies the host's seam on Windows.
#include <string>

#include "host/platform.h"
#include "host/programVersion.h"
#include "host/sheet/soundPreview.h"
#include "host/sheet/windows/propertySheet.h"
#include "host/windows/pausableTimer.h"
#include "services/platform.h"

namespace {

xplRect<int> rectangleOf(const RECT& edges) {
  xplRect<int> rectangle(edges.top, edges.left, 0, 0);
  rectangle.setRight(edges.right);
  rectangle.setBottom(edges.bottom);
  return rectangle;
}

BOOL CALLBACK appendMonitor(HMONITOR, HDC, LPRECT edges, LPARAM list) {
  reinterpret_cast<std::vector<xplRect<int>>*>(list)->push_back(rectangleOf(*edges));
  return TRUE;
}

}  // namespace

std::uintptr_t xplStartTimer(xplWindowHandle window, std::uintptr_t wantedId, unsigned milliseconds) {
  return pausableTimer::start(window, wantedId, milliseconds);
}

void xplStopTimer(xplWindowHandle window, std::uintptr_t id) {
  pausableTimer::stop(window, id);
}

void xplInvalidateClientArea(xplWindowHandle window) {
  RECT area{};
  if (GetClientRect(window, &area)) {
    InvalidateRect(window, &area, FALSE);
  }
}

xplPaintScope::xplPaintScope(xplWindowHandle window) : m_window(window), m_data{} {
  BeginPaint(m_window, &m_data);
}

xplPaintScope::~xplPaintScope() {
  EndPaint(m_window, &m_data);
}

std::uintptr_t xplHandleNumber(xplWindowHandle window) {
  return reinterpret_cast<std::uintptr_t>(window);
}

std::uintptr_t xplFindNotepadWindow() {
  return xplHandleNumber(FindWindowA("Notepad", nullptr));
}

bool xplEnumerateMonitors(xplWindowHandle, std::vector<xplRect<int>>& monitors) {
  return EnumDisplayMonitors(nullptr, nullptr, appendMonitor, reinterpret_cast<LPARAM>(&monitors)) != FALSE;
}

void xplShowSettings(xplWindowHandle parent) {
  cSoundPlayer player(xplMakeSoundOutput());
  SettingsSheet sheet(xplUserSettings(), soundPreview(player));
  if (!showPropertySheet(parent, sheet)) {
    const std::string text = "The settings sheet could not be shown. The settings are in this file:\n" +
                             xplUserSettings().filename();
    MessageBoxA(parent, text.c_str(), programName, MB_OK | MB_ICONWARNING);
  }
}
