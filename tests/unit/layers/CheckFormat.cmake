# Fails, naming the lines, when a source file is not as clang-format would write it.
file(GLOB_RECURSE files ${ROOT}/src/*.h ${ROOT}/src/*.cpp ${ROOT}/tests/*.h ${ROOT}/tests/*.cpp ${ROOT}/bench/*.cpp
     ${ROOT}/tools/*.h ${ROOT}/tools/*.cpp)
list(LENGTH files count)
if(count EQUAL 0)
  message(FATAL_ERROR "no source files below ${ROOT}")
endif()
execute_process(COMMAND ${CLANG_FORMAT} --dry-run --Werror ${files} RESULT_VARIABLE result)
if(result)
  message(FATAL_ERROR "clang-format -i would change some of the ${count} files")
endif()
