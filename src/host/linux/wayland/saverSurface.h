// One surface of the saver: it shows its part of the picture, as often as the compositor wants to see it.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <utility>

#include "host/linux/wayland/frameBuffers.h"
#include "host/linux/wayland/surfaceRole.h"
#include "host/linux/wayland/waylandGlobals.h"

class SaverSurface : private SurfaceRoleEvents {
 public:
  struct Place {
    std::uint32_t output = 0;   // the compositor's number for it; 0 where it is on none in particular
    xplEdges onPicture;         // pixels of the picture
    int width = 0, height = 0;  // the same in logical pixels
    double scale = 1;           // pixels of the picture to a logical one

    // The surface's own coordinates (logical pixels) in pixels of the picture.
    int pictureX(double x) const;
    int pictureY(double y) const;
  };
  using MakeRole = std::function<std::unique_ptr<SurfaceRole>(wl_surface*, SurfaceRoleEvents&)>;

  // The globals are borrowed; compositor and shared memory must be there.
  SaverSurface(const WaylandGlobals& globals, const Place& place, const MakeRole& makeRole);
  SaverSurface(const SaverSurface&) = delete;
  SaverSurface& operator=(const SaverSurface&) = delete;

  const Place& place() const { return m_place; }
  // It shows another part from now on.
  void setPlace(const Place& place);
  // The compositor wants it gone, or has taken it away.
  bool isClosed() const { return m_isClosed; }

  // False until the compositor has given it a size, and while it does not want to see another frame.
  bool wantsFrame() const;
  // Takes over what it shows of these parts of the picture.
  void draw(const PixelMemory& picture, std::span<const xplEdges> parts);
  // Shows what was drawn, if the compositor wants to see it already. True where it did.
  bool commit();
  // True once after all of its part of the picture is needed again.
  bool takeContentLost() { return std::exchange(m_isContentLost, false); }

 private:
  void hearSize(int width, int height) override;
  void hearClosing() override { m_isClosed = true; }
  // Gives it buffers of its present size, and the compositor the whole content anew.
  void renewBuffers();

  wl_shm* m_sharedMemory;
  Place m_place;
  Proxy<wl_surface> m_surface;
  Proxy<wp_viewport> m_viewport;  // null where a pixel of the picture is a logical one
  std::unique_ptr<SurfaceRole> m_role;
  Proxy<wl_callback> m_frameWanted;  // until the compositor wants another frame
  int m_width = 0;                   // logical pixels, as the compositor gave them; 0 before
  int m_height = 0;
  xplEdges m_shown;                         // what it shows of the picture, in its pixels
  std::unique_ptr<FrameBuffers> m_buffers;  // null until there is a size
  std::unique_ptr<FrameBuffers> m_former;   // what is shown until the first frame of another size
  bool m_isWholeNew = false;                // nothing of the buffers' size was shown yet
  bool m_isContentLost = false;
  bool m_isClosed = false;
};
