# The warnings that every target of ours is built with, each with its reason; all are errors.
add_library(lunaria_warnings INTERFACE)
target_compile_options(lunaria_warnings INTERFACE
  -Wall                    # the compiler's own choice of constructs that are nearly always mistakes
  -Wextra                  # more of the same: unused parameters, missing fields, empty bodies
  -Wpedantic               # nothing that another compiler (MSVC) would refuse
  -Wconversion             # pixel and time arithmetic mixes widths: every narrowing is written down
  -Wsign-conversion        # the same for a change of sign
  -Wfloat-conversion       # truncation of a float is behaviour here and must be visible as a cast
  -Wshadow                 # a local that hides a member reads as the wrong one
  -Wold-style-cast         # a C cast hides which conversion is meant
  -Wcast-align             # pixels are read as words; their memory must be aligned for it
  -Wcast-qual              # resources are constant data
  -Woverloaded-virtual     # a slot that is hidden instead of overridden is silently never called
  -Wdelete-non-virtual-dtor # some sprites have no virtual destructor on purpose: never delete through them
  -Wformat=2               # the log takes printf formats; their arguments are checked
  -Wundef                  # a misspelt macro in a condition would count as 0
  -Wextra-semi             # noise that hides real differences
  -Werror)                 # a warning that is only printed is a warning that is not read
target_compile_options(lunaria_warnings INTERFACE
  -ffp-contract=off)       # no fused multiply-add: all platforms compute the same positions
# Clang alone counts a container that destroys its rectangles, which it knows exactly, among the deletes.
target_compile_options(lunaria_warnings INTERFACE
  $<$<CXX_COMPILER_ID:Clang>:-Wno-delete-non-abstract-non-virtual-dtor>)
