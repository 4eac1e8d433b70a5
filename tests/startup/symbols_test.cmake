cmake_policy(VERSION 3.25)

# What the built library asks of the process that loads it, and what it shows:
# cmake -DLIBRARY=... -DNM=... -DSTUBS=... -P

# The platform's functions are those that the phone's library links with.
file(GLOB stubs ${STUBS}/*.tbd)
foreach(stub IN LISTS stubs)
  file(STRINGS ${stub} lines REGEX "^      - _")
  list(TRANSFORM lines REPLACE "^      - _" "")
  list(APPEND PLATFORM ${lines})
endforeach()
# This platform's Objective-C and blocks runtimes.
set(RUNTIMES "^(objc_|object_|class_|sel_|_NSConcrete|_Block_)")
# Versioned symbols are those of the C and C++ runtimes; sanitizers bring their own.
set(LANGUAGE "@(GLIBC|GLIBCXX|CXXABI|GCC)_|^(__asan_|__ubsan_|__tsan_|__sanitizer_|__sancov_)|^(__gmon_start__|_ITM_|__cxa_finalize)")

execute_process(COMMAND ${NM} -D --undefined-only ${LIBRARY} OUTPUT_VARIABLE undefined COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${undefined}")
list(LENGTH lines count)
if(count LESS 10)
  message(FATAL_ERROR "${NM} lists ${count} undefined symbols only")
endif()
foreach(line IN LISTS lines)
  string(REGEX REPLACE "^ *[Uuwv] " "" symbol "${line}")
  if(NOT symbol MATCHES "${RUNTIMES}" AND NOT symbol MATCHES "${LANGUAGE}" AND NOT symbol IN_LIST PLATFORM)
    message(SEND_ERROR "undefined, and not of the platform: ${symbol}")
  endif()
endforeach()

execute_process(COMMAND ${NM} -D --defined-only ${LIBRARY} OUTPUT_VARIABLE defined COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" lines "${defined}")
list(FILTER lines EXCLUDE REGEX " (__asan_|__odr_asan|___asan_)")
if(lines)
  message(SEND_ERROR "shown to everybody in the process: ${lines}")
endif()
