# The module of live pages is made by a compiler for browsers, in a build of its own whose steps follow its sources.
# LIVE_MODULE is its file; empty where the compiler is not there, and LIVE_MISSING then names the packages.
include(ExternalProject)
file(STRINGS ${CMAKE_SOURCE_DIR}/tools/packages_web.txt web_packages REGEX "^[^#]")
set(web_build ${CMAKE_BINARY_DIR}/web)
file(WRITE ${web_build}-try.cpp "#include <string>\nstd::string text(int i) { return std::to_string(i); }\n")
execute_process(COMMAND clang++-14 --target=wasm32-wasi -mexec-model=reactor ${web_build}-try.cpp -lc++abi
  -o ${web_build}-try.wasm RESULT_VARIABLE web_failed OUTPUT_QUIET ERROR_QUIET)
if(web_failed)
  string(JOIN " " LIVE_MISSING ${web_packages})
  message(STATUS "Without live pages, which want the packages ${LIVE_MISSING}")
  return()
endif()

set(LIVE_MODULE ${web_build}/live.wasm)
ExternalProject_Add(live_module
  PREFIX ${web_build}-steps
  SOURCE_DIR ${CMAKE_SOURCE_DIR}
  BINARY_DIR ${web_build}
  CMAKE_ARGS -DZENTRIK_WEB_MODULE=ON -DCMAKE_BUILD_TYPE=Release
    -DCMAKE_TOOLCHAIN_FILE=${CMAKE_SOURCE_DIR}/src/web/wasm.cmake -DZENTRIK_WEB_PAGE=${ZENTRIK_WEB_PAGE}
    -DCMAKE_COMPILE_WARNING_AS_ERROR=${CMAKE_COMPILE_WARNING_AS_ERROR}
  BUILD_ALWAYS ON
  BUILD_BYPRODUCTS ${LIVE_MODULE}
  INSTALL_COMMAND "")
