# Cross-building for the device: arm64 with iOS 9.0 or later, with clang and lld.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)

# The compiler, the linker, the tools and the headers of libc++ are from the same release of LLVM: that of clang++.
file(REAL_PATH /usr/bin/clang++ clang)
cmake_path(GET clang PARENT_PATH llvm_tools)
cmake_path(GET llvm_tools PARENT_PATH llvm)

set(ios_sysroot ${CMAKE_CURRENT_LIST_DIR}/../platform/ios/sysroot)
cmake_path(NORMAL_PATH ios_sysroot)

set(SDKROOT "$ENV{SDKROOT}" CACHE PATH "The SDK to build against; without one, the stand-ins in platform/ios/sysroot")
# CMake's own compiler checks read this file again.
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES SDKROOT)

# The headers of the standard library are those of the compiler, with or without an SDK. They mark what the device's
# library lacks.
add_compile_options(
  -nostdinc++
  "SHELL:-isystem ${ios_sysroot}/libcxx"
  "SHELL:-isystem ${llvm}/include/c++/v1"
)
if(SDKROOT)
  set(CMAKE_OSX_SYSROOT ${SDKROOT})
  # Replacements for deprecated functions do not exist in iOS 9.
  add_compile_options(-Wno-deprecated-declarations)
else()
  set(CMAKE_OSX_SYSROOT ${ios_sysroot}/stubs)
  add_compile_options(-nostdlibinc "SHELL:-isystem ${ios_sysroot}/libc")
endif()
# Frameworks of the SDK come before those that no SDK contains.
add_compile_options("SHELL:-idirafter ${ios_sysroot}/frameworks")

foreach(language CXX OBJCXX)
  set(CMAKE_${language}_COMPILER ${llvm_tools}/clang++)
  set(CMAKE_${language}_COMPILER_TARGET arm64-apple-ios9.0)
endforeach()
# The linker's version tells the compiler which options lld supports.
string(JOIN " " CMAKE_MODULE_LINKER_FLAGS_INIT
  -fuse-ld=lld
  --ld-path=${llvm_tools}/ld64.lld
  -mlinker-version=609
  -stdlib=libc++
  -F${ios_sysroot}/stubs/System/Library/PrivateFrameworks
)

set(CMAKE_AR ${llvm_tools}/llvm-ar)
set(CMAKE_RANLIB ${llvm_tools}/llvm-ranlib)
set(CMAKE_INSTALL_NAME_TOOL ${llvm_tools}/llvm-install-name-tool)

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_OBJCXX_VISIBILITY_PRESET hidden)
# There are no libraries to link a program with.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
