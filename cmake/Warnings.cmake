# dockwidget_warnings(target): the project's warnings, all of them errors.
function(dockwidget_warnings target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /WX /permissive- /utf-8)
  else()
    target_compile_options(${target} PRIVATE
      -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
      -Wold-style-cast -Wcast-qual -Wconversion -Wno-sign-conversion)
  endif()
endfunction()
