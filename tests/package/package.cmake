# Unpacks the SDK's archive into another folder, builds hosts against it alone, with CMake and with what pkg-config says, and the
# examples that it holds and the first host of the guides, and runs them all.
#
#   cmake -D BUILD=... -D ROOT=... -D CXX=... -D WINE=... [-D ARCHIVE=FILE] -P package.cmake
#
# Without ARCHIVE, a file that ./package has made, it is packed from BUILD first.
set(work ${BUILD}/package-test)
set(place "${work}/Größe und Maß")
set(host ${ROOT}/tests/package/host)
file(REMOVE_RECURSE ${work})
file(COPY ${host}/ DESTINATION ${work}/source)

# A dialog of the library's own as a host would write it: the same sources under another name, not exported.
foreach(suffix h cpp)
  file(READ ${ROOT}/ovoui/colour/ColPickerPaletteDlg.${suffix} text)
  string(REPLACE "ovoui/colour/ColPickerPaletteDlg.h" "HostPaletteDlg.h" text "${text}")
  string(REPLACE ColPickerPaletteDlg HostPaletteDlg text "${text}")
  string(REPLACE "OVOUI_API " "" text "${text}")
  file(WRITE ${work}/source/HostPaletteDlg.${suffix} "${text}")
endforeach()

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
endfunction()

# under_wine(PROGRAM): runs it beside the archive's libraries.
function(under_wine program)
  file(COPY ${program} DESTINATION ${prefix}/bin)
  get_filename_component(name ${program} NAME)
  run_where_it_is(${prefix}/bin/${name})
endfunction()

# run_where_it_is(PROGRAM [ARGUMENT]): its libraries have been put beside it when it was built; file names are UTF-8.
function(run_where_it_is program)
  run(${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 ${WINE} --home ${BUILD}/wine --apart ${program} ${ARGN})
endfunction()

# visit(PROGRAM): starts a program with a window where it was built.
function(visit program)
  get_filename_component(folder ${program} DIRECTORY)
  get_filename_component(name ${program} NAME)
  file(COPY ${work}/build/visitor.exe DESTINATION ${folder})
  run_where_it_is(${folder}/visitor.exe ${name})
endfunction()

# configure_and_build(SOURCE BUILD): with the compiler's own default for the language, which is older than what the headers need.
function(configure_and_build source build)
  run(${CMAKE_COMMAND} -S ${source} -B ${build} -G Ninja
      -D CMAKE_TOOLCHAIN_FILE=${toolchain} -D CMAKE_PREFIX_PATH=${prefix} -D CMAKE_BUILD_TYPE=Release)
  run(${CMAKE_COMMAND} --build ${build})
endfunction()

set(whole --whole)
if(NOT ARCHIVE)
  set(whole "")
  run(${CPACK} --config ${BUILD}/CPackConfig.cmake -G ZIP -B ${work})
  file(GLOB ARCHIVE ${work}/*.zip)
endif()
file(ARCHIVE_EXTRACT INPUT ${ARCHIVE} DESTINATION ${place})
file(GLOB prefix ${place}/*)
set(toolchain ${prefix}/lib/cmake/ovoui/mingw-w64.cmake)
include(${prefix}/lib/cmake/ovoui/ovouiConfigVersion.cmake)
run(${ROOT}/tests/package/check-archive ${ROOT} ${prefix} ${PACKAGE_VERSION} ${whole})

run_where_it_is(${prefix}/bin/gallery.exe --list)
configure_and_build(${work}/source ${work}/build)
foreach(program host windowed palette drawing)
  under_wine(${work}/build/${program}.exe)
endforeach()

# By hand, as a makefile would, with what pkg-config says.
file(MAKE_DIRECTORY ${work}/by-hand)
set(packages_of_host ovoui)
set(packages_of_windowed ovoui-windowed)
set(packages_of_drawing ovoui-svg ovoui)
foreach(program host windowed drawing)
  run(${ROOT}/tests/package/build-by-hand ${prefix} ${CXX} ${host}/${program}.cpp ${work}/by-hand/${program}.exe
      ${packages_of_${program}})
  under_wine(${work}/by-hand/${program}.exe)
endforeach()

# By a compiler that shares nothing but the platform's calls, through the import library made from the list of exports.
run(${CLANG} --target=x86_64-pc-windows-msvc -x c -c ${ROOT}/tests/package/by-name.c -o ${work}/by-hand/by-name.obj)
run(${CXX} ${work}/by-hand/by-name.obj ${prefix}/lib/by-export-list/ovoui.lib -o ${work}/by-hand/by-name.exe)
under_wine(${work}/by-hand/by-name.exe)

# And by a linker of Microsoft's kind, without any runtime.
find_program(LLD NAMES lld-link lld-link-14 REQUIRED)
execute_process(COMMAND ${CXX} -print-file-name=libkernel32.a OUTPUT_VARIABLE kernel OUTPUT_STRIP_TRAILING_WHITESPACE)
run(${LLD} /nodefaultlib /entry:begin /subsystem:console /out:${work}/by-hand/by-name-alone.exe
    ${work}/by-hand/by-name.obj ${prefix}/lib/by-export-list/ovoui.lib ${kernel})
under_wine(${work}/by-hand/by-name-alone.exe)

# The examples, each in a build folder of its own, where its DLLs are put, too; a program is started, shows its window, and ends when
# that is closed.
set(built "${work}/Bäume und Blätter")
file(GLOB examples RELATIVE ${prefix}/examples ${prefix}/examples/*/CMakeLists.txt)
file(GLOB in_the_project RELATIVE ${ROOT}/examples ${ROOT}/examples/*/CMakeLists.txt)
if(NOT examples STREQUAL in_the_project)
  message(FATAL_ERROR "the archive has the examples ${examples}, the project ${in_the_project}")
endif()
foreach(example IN LISTS examples)
  get_filename_component(name ${example} DIRECTORY)
  configure_and_build(${prefix}/examples/${name} ${built}/${name})
  file(GLOB programs ${built}/${name}/*.exe)
  list(LENGTH programs count)
  if(count EQUAL 0)
    message(FATAL_ERROR "the example ${name} makes no program")
  endif()
  foreach(program IN LISTS programs)
    visit(${program})
  endforeach()
endforeach()

# The first host, as its guide has it.
foreach(name host.cpp CMakeLists.txt)
  file(MAKE_DIRECTORY ${work}/first-host)
  run(${ROOT}/docs/tools/take-example ${ROOT} docs/guides/first-host.md ${name} ${work}/first-host/${name})
endforeach()
configure_and_build(${work}/first-host ${work}/first-host/build)
visit(${work}/first-host/build/host.exe)

# The robot test of an example, with the kit of the archive, on the program that was built with it.
set(robot ${work}/robot)
file(COPY ${ROOT}/tests/package/robot DESTINATION ${work})
file(COPY ${prefix}/examples/settings-dialog/resource.h DESTINATION ${robot}/settings-dialog)
file(COPY ${ROOT}/tests/examples/SettingsDialogTest.cpp ${ROOT}/tests/examples/ExampleScene.h DESTINATION ${robot})
configure_and_build(${robot} ${robot}/build)
file(COPY ${built}/settings-dialog/settings-dialog.exe DESTINATION ${robot}/build)
run_where_it_is(${robot}/build/robot.exe)

list(LENGTH examples count)
message(STATUS "the SDK builds and runs its hosts and ${count} examples")
