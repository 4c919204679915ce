# Removes what cmake --install noted in the manifests of the folder CWIDGET_MANIFESTS, and of the
# folders that this leaves empty those that bear the library's name. What was staged with DESTDIR is
# taken back with the same DESTDIR.

cmake_minimum_required(VERSION 3.16)

file(GLOB manifests "${CWIDGET_MANIFESTS}/install_manifest*.txt")
if(NOT manifests)
  message(FATAL_ERROR "Nothing was installed from ${CWIDGET_MANIFESTS}")
endif()

foreach(manifest IN LISTS manifests)
  file(STRINGS "${manifest}" files)
  foreach(file IN LISTS files)
    set(file "$ENV{DESTDIR}${file}")
    if(EXISTS "${file}" OR IS_SYMLINK "${file}")
      message(STATUS "Removing ${file}")
      file(REMOVE "${file}")
    endif()
    get_filename_component(folder "${file}" DIRECTORY)
    while(folder MATCHES "[/](quorlin-cwidget|QuorlinCWidget)")
      file(GLOB left "${folder}/*")
      if(left OR NOT IS_DIRECTORY "${folder}")
        break()
      endif()
      file(REMOVE_RECURSE "${folder}")
      get_filename_component(folder "${folder}" DIRECTORY)
    endwhile()
  endforeach()
  file(REMOVE "${manifest}")
endforeach()
