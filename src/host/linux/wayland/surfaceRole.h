// What a surface is to the compositor: a layer over the desktop, or a window.
#pragma once

// What a role tells its surface. Called while events are dispatched; the role must not be destroyed
// meanwhile.
class SurfaceRoleEvents {
 public:
  // The surface shall have this size in logical pixels; 0 where that is left to it. Already acknowledged.
  virtual void hearSize(int width, int height) = 0;
  // The compositor wants it gone, or has taken it away.
  virtual void hearClosing() = 0;

 protected:
  ~SurfaceRoleEvents() = default;
};

// Must be destroyed before the surface.
class SurfaceRole {
 public:
  virtual ~SurfaceRole() = default;
};
