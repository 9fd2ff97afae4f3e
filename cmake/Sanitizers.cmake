# DOCKWIDGET_SANITIZERS applies to everything that is built, so that no frame of ours goes unchecked.
if(DOCKWIDGET_SANITIZERS)
  add_compile_options(-fsanitize=${DOCKWIDGET_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${DOCKWIDGET_SANITIZERS})
endif()
