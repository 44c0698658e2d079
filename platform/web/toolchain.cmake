# The compiler of the browser's program. It has no exceptions to offer and no threads: nothing that is
# compiled with it throws, and the page has one thread.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
# An older llvm-ar, where one is installed, would be taken, and cannot read what this compiler writes.
set(CMAKE_AR ar)
set(CMAKE_RANLIB ranlib)
set(CMAKE_CXX_FLAGS_INIT "-stdlib=libc++ -fno-exceptions -ffunction-sections -fdata-sections")
# There is no `main`: the page calls what the program exports.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-mexec-model=reactor -Wl,--gc-sections -Wl,-z,stack-size=262144")
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(LEAFUND_WEB ON)
