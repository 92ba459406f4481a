# Installs into a fresh folder, builds a small host against the installed package alone, and runs it.
set(work ${BUILD}/package-test)
file(REMOVE_RECURSE ${work})
file(COPY ${HOST}/ DESTINATION ${work}/source)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${work}/prefix)
run(${CMAKE_COMMAND} -S ${work}/source -B ${work}/build -G Ninja
    -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -D CMAKE_PREFIX_PATH=${work}/prefix -D CMAKE_BUILD_TYPE=Release)
run(${CMAKE_COMMAND} --build ${work}/build)
file(GLOB libraries ${work}/prefix/bin/*.dll)
file(COPY ${libraries} DESTINATION ${work}/build)
foreach(program host windowed)
  run(${WINE} --home ${BUILD}/wine --apart ${work}/build/${program}.exe)
endforeach()
message(STATUS "the installed package builds and runs a host")
