# Run by CPack when the packages are made: corrects what it gets wrong. Folders have the modes that the umask of
# whoever builds leaves them, and the Installed-Size counts the saver's program once more where only a link to it lies.
cmake_minimum_required(VERSION 3.25)

# run(<command>...): in the folder of the packages; ends the build where it fails. What it prints is in `output`.
macro(run)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${CPACK_PACKAGE_DIRECTORY} OUTPUT_VARIABLE output
                  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endmacro()

# correct(<package>): the size as the packaging manual counts it: kibibytes, each file rounded up, one for each folder
# and link.
function(correct package)
  set(tree ${CPACK_PACKAGE_DIRECTORY}/unpacked)
  file(REMOVE_RECURSE ${tree})
  run(dpkg-deb --raw-extract ${package} ${tree})
  run(find ${tree} -type d -exec chmod 755 {} +)
  run(find ${tree} -mindepth 1 -path ${tree}/DEBIAN -prune -o -type f -printf "%s " -o -printf "1 ")
  separate_arguments(sizes UNIX_COMMAND "${output}")
  set(total 0)
  foreach(size IN LISTS sizes)
    math(EXPR total "${total} + (${size} + 1023) / 1024")
  endforeach()
  run(sed -i "s/^Installed-Size: .*/Installed-Size: ${total}/" ${tree}/DEBIAN/control)
  run(dpkg-deb --root-owner-group -Zxz --build ${tree} ${package})
  file(REMOVE_RECURSE ${tree})
endfunction()

foreach(package IN LISTS CPACK_PACKAGE_FILES)
  correct(${package})
endforeach()
