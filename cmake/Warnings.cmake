option(DOCKWIDGET_WARNINGS_AS_ERRORS "Fail on a warning; for development, where the compilers are known" OFF)

# dockwidget_warnings(target): the project's warnings.
function(dockwidget_warnings target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /permissive- /utf-8
      $<$<BOOL:${DOCKWIDGET_WARNINGS_AS_ERRORS}>:/WX>)
  else()
    target_compile_options(${target} PRIVATE
      -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
      -Wold-style-cast -Wcast-qual -Wconversion -Wno-sign-conversion
      $<$<BOOL:${DOCKWIDGET_WARNINGS_AS_ERRORS}>:-Werror>)
  endif()
endfunction()
