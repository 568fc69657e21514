# Makes the portable folder OUT from the application folder APP_DIR: the
# program at the folder's top, so that its data stay beside it; its string
# libraries; the Qt plugins of portablefolder.cmake under plugins/; and in
# lib/ every shared library these need that the host does not give, as the
# files themselves name them. Everything is stripped and finds the rest
# through its run path; qt.conf points Qt at plugins/.
# Run by the target `portable` with APP_DIR, OUT, QT_PLUGIN_DIR, STRIP,
# OBJDUMP and PATCHELF set.
cmake_minimum_required(VERSION 3.22)
include(${CMAKE_CURRENT_LIST_DIR}/portablefolder.cmake)
if(NOT EXISTS "${PATCHELF}")
  message(FATAL_ERROR "patchelf is missing: apt-get install patchelf, then configure again")
endif()

file(REMOVE_RECURSE ${OUT})
file(MAKE_DIRECTORY ${OUT}/lib)
file(COPY_FILE ${APP_DIR}/tandry ${OUT}/tandry)
file(GLOB string_libraries ${APP_DIR}/*.dll)
file(COPY ${string_libraries} DESTINATION ${OUT})

set(plugins)
foreach(plugin ${PORTABLE_PLUGINS} ${PORTABLE_PLUGINS_IF_PRESENT})
  if(EXISTS ${QT_PLUGIN_DIR}/${plugin})
    get_filename_component(kind ${plugin} DIRECTORY)
    file(MAKE_DIRECTORY ${OUT}/plugins/${kind})
    file(COPY_FILE ${QT_PLUGIN_DIR}/${plugin} ${OUT}/plugins/${plugin})
    list(APPEND plugins ${OUT}/plugins/${plugin})
  elseif(plugin IN_LIST PORTABLE_PLUGINS)
    message(FATAL_ERROR "The Qt plugin ${plugin} is not in ${QT_PLUGIN_DIR}")
  else()
    message(STATUS "Left out, not on this machine: ${plugin}")
  endif()
endforeach()

# Libraries opened by name are looked up where the loader's cache has them.
execute_process(COMMAND ldconfig -p OUTPUT_VARIABLE cache COMMAND_ERROR_IS_FATAL ANY)
set(by_name)
foreach(name ${PORTABLE_LOADED_BY_NAME})
  string(REGEX MATCH "\t${name} \\([^)]*x86-64[^)]*\\) => ([^\n]+)" found "${cache}")
  if(NOT found)
    message(FATAL_ERROR "${name}, opened at run time, is not on this machine")
  endif()
  list(APPEND by_name ${CMAKE_MATCH_1})
endforeach()

set(host_names)
foreach(name ${PORTABLE_HOST_LIBRARIES})
  string(REGEX REPLACE "([.+])" "\\\\\\1" name "${name}")
  list(APPEND host_names "^${name}$")
endforeach()
file(GET_RUNTIME_DEPENDENCIES
  EXECUTABLES ${OUT}/tandry
  LIBRARIES ${by_name}
  MODULES ${plugins}
  PRE_EXCLUDE_REGEXES ${host_names}
  RESOLVED_DEPENDENCIES_VAR needed
  UNRESOLVED_DEPENDENCIES_VAR missing)
if(missing)
  message(FATAL_ERROR "Needed but not found on this machine: ${missing}")
endif()
foreach(library ${needed} ${by_name})
  get_filename_component(name ${library} NAME)
  file(COPY_FILE ${library} ${OUT}/lib/${name})  # the file itself: a stick's FAT holds no links
endforeach()

# Stripped first: patchelf's changes are to be the last.
function(finish file runpath)
  execute_process(COMMAND ${STRIP} --strip-unneeded ${file} COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND ${PATCHELF} --set-rpath ${runpath} ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()
finish(${OUT}/tandry "$ORIGIN/lib")
file(GLOB libraries ${OUT}/lib/*)
foreach(file ${libraries})
  finish(${file} "$ORIGIN")
endforeach()
foreach(file ${plugins})
  finish(${file} "$ORIGIN/../../lib")
endforeach()
file(WRITE ${OUT}/qt.conf "[Paths]\nPrefix = .\nPlugins = plugins\nLibraries = lib\n")

# What the host must give: the newest symbol versions of its C library and
# C++ run time that any file asks for.
set(floor_c 2.0)
set(floor_cxx 3.4)
foreach(file ${OUT}/tandry ${libraries} ${plugins})
  execute_process(COMMAND ${OBJDUMP} -T ${file} OUTPUT_VARIABLE symbols)
  string(REGEX MATCHALL "GLIBC_2\\.[0-9.]+|GLIBCXX_3\\.[0-9.]+" versions "${symbols}")
  foreach(version ${versions})
    string(REGEX REPLACE "^GLIBC(XX)?_" "" number ${version})
    if(version MATCHES "^GLIBCXX" AND number VERSION_GREATER floor_cxx)
      set(floor_cxx ${number})
    elseif(version MATCHES "^GLIBC_" AND number VERSION_GREATER floor_c)
      set(floor_c ${number})
    endif()
  endforeach()
endforeach()
file(GLOB_RECURSE everything ${OUT}/*)
set(bytes 0)
foreach(file ${everything})
  file(SIZE ${file} size)
  math(EXPR bytes "${bytes} + ${size}")
endforeach()
math(EXPR megabytes "(${bytes} + 524288) / 1048576")
list(LENGTH libraries library_count)
list(LENGTH plugins plugin_count)
message(STATUS "The portable folder ${OUT}: ${megabytes} MB, ${library_count} libraries, "
               "${plugin_count} plugins; it needs of the host the C library ${floor_c} or later "
               "and a C++ run time with GLIBCXX_${floor_cxx}")
