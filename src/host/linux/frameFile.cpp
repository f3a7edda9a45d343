// Implements the file of a frame.
#include "host/linux/frameFile.h"

#include <fcntl.h>
#include <sys/mman.h>

FileDescriptor makeFrameFile(std::size_t size) {
  FileDescriptor file(::memfd_create("lunaria-frame", MFD_CLOEXEC));
  // The memory is taken at once: were there too little, a write into it would end the program later.
  if (file.isOpen() && ::posix_fallocate(file.get(), 0, static_cast<off_t>(size)) != 0) {
    return {};
  }
  return file;
}
