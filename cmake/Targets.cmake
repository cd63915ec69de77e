# The kinds of code as link targets. `rules` never sees Qt or SQLite: its targets link nothing but each other, so an
# include of a Qt header there does not compile.

add_library(penwright_flags INTERFACE)
target_compile_options(penwright_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(penwright_flags INTERFACE -Wno-restrict)  # false alarms of gcc 12 about std::string
endif()
if(PENWRIGHT_WERROR)
  target_compile_options(penwright_flags INTERFACE -Werror)
endif()
target_compile_options(penwright_flags INTERFACE $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=2>)
target_link_options(penwright_flags INTERFACE $<$<CONFIG:Release>:LINKER:-z,relro,-z,now>)
if(PENWRIGHT_SANITIZE)
  # A target may leave its own code out of the search for undefined behaviour.
  set(undefined $<$<NOT:$<BOOL:$<TARGET_PROPERTY:PENWRIGHT_TRUSTED>>>:,undefined>)
  target_compile_options(penwright_flags INTERFACE -fsanitize=address${undefined} -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
  target_link_options(penwright_flags INTERFACE -fsanitize=address,undefined)
endif()
if(PENWRIGHT_FUZZ)
  target_compile_options(penwright_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

add_library(rules INTERFACE)
add_library(windows INTERFACE)

# Rules of one folder: the standard library only. Without sources the target exists and is empty.
function(penwright_rules folder)
  if(ARGN)
    add_library(${folder}_rules ${PENWRIGHT_RULES} ${ARGN})
    target_include_directories(${folder}_rules PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${folder}_rules PRIVATE penwright_flags)
  else()
    add_library(${folder}_rules INTERFACE)
    target_include_directories(${folder}_rules INTERFACE ${PROJECT_SOURCE_DIR}/src)
  endif()
  target_link_libraries(rules INTERFACE ${folder}_rules)
endfunction()

# What wraps a library, or a service of the system, and is neither rules nor windows.
function(penwright_library name)
  add_library(${name} STATIC ${ARGN})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PRIVATE penwright_flags)
endfunction()

# One implementation of the platform interfaces.
function(penwright_platform kind)
  penwright_library(platform_${kind} ${ARGN})
endfunction()

# Windows of one folder, with their forms; they see the rules and the Qt side of the platform.
function(penwright_windows folder)
  add_library(${folder}_windows STATIC ${ARGN})
  set_target_properties(${folder}_windows PROPERTIES AUTOMOC ON AUTOUIC ON)
  target_link_libraries(${folder}_windows PRIVATE penwright_flags PUBLIC rules platform_qt Qt6::Widgets)
  target_precompile_headers(${folder}_windows REUSE_FROM platform_qt)
  target_link_libraries(windows INTERFACE ${folder}_windows)
endfunction()
