# The catalog service and the service account that the library is built for, and what of the library depends on them.
set(PARTHARBOR_SERVICE_HOST "localhost:8443" CACHE STRING "Host (and port) of the catalog service and its web site")
set(PARTHARBOR_SERVICE_CATALOG "partharbor" CACHE STRING "ServiceLogin: catalog")
set(PARTHARBOR_SERVICE_USER "PlotvaneSU" CACHE STRING "ServiceLogin: service user")
set(PARTHARBOR_SERVICE_PASSWORD "TulipWindowCanvas" CACHE STRING "ServiceLogin: password of the service user")
set(PARTHARBOR_SERVICE_ENDUSER "Plotvane" CACHE STRING "ServiceLogin: end user")
# The development tests run against services on free ports, reached under this name through a proxy of their own.
set(DOCKWIDGET_TEST_SERVICE_HOST "catalog.test:8443")

# dockwidget_check_service_host(host): ends the configuration when that is no host name with or without a port. The
# name goes into addresses and XML as it stands.
function(dockwidget_check_service_host host)
  if(host MATCHES "[^ -~]")
    message(FATAL_ERROR "PARTHARBOR_SERVICE_HOST '${host}' has letters beyond ASCII: give the name's punycode form, "
      "which begins with xn--.")
  endif()
  if(NOT host MATCHES "^([A-Za-z0-9._-]+|\\[[0-9A-Fa-f:.]+\\])(:([0-9]+))?$")
    message(FATAL_ERROR "PARTHARBOR_SERVICE_HOST '${host}' is no host: give the host's name, and a port if there is "
      "one, without scheme and path, such as catalog.example.com or catalog.example.com:8443.")
  endif()
  if(CMAKE_MATCH_2 AND (CMAKE_MATCH_3 LESS 1 OR CMAKE_MATCH_3 GREATER 65535))
    message(FATAL_ERROR "PARTHARBOR_SERVICE_HOST '${host}': ports go from 1 to 65535.")
  endif()
endfunction()
dockwidget_check_service_host("${PARTHARBOR_SERVICE_HOST}")

# dockwidget_add_service_host(target host): what depends on the service host, as an object library: the
# addresses and the resource bundle with its request templates. Everything else is compiled once for all hosts.
function(dockwidget_add_service_host target host)
  set(staging ${CMAKE_BINARY_DIR}/resources/${target})
  dockwidget_request_templates(${staging} ${host} templates)
  dockwidget_resource_bundle(${staging} "${templates}" bundle)
  add_library(${target} OBJECT ${CMAKE_SOURCE_DIR}/service/ServiceAddress.cpp ${bundle})
  target_compile_definitions(${target} PRIVATE PARTHARBOR_SERVICE_HOST="${host}")
  target_include_directories(${target} PRIVATE ${CMAKE_SOURCE_DIR})
  target_link_libraries(${target} PRIVATE Qt5::Core)
  add_dependencies(${target} dockwidget_translations)
  set_target_properties(${target} PROPERTIES AUTOMOC OFF AUTOUIC OFF CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  dockwidget_warnings(${target})
endfunction()

# Fills the request templates for a host: CR LF line ends and none after the last line.
function(dockwidget_request_templates folder host result)
  set(PARTHARBOR_SERVICE_HOST ${host})
  foreach(value HOST CATALOG USER PASSWORD ENDUSER)
    string(REPLACE "&" "&amp;" PARTHARBOR_SERVICE_${value} "${PARTHARBOR_SERVICE_${value}}")
    string(REPLACE "<" "&lt;" PARTHARBOR_SERVICE_${value} "${PARTHARBOR_SERVICE_${value}}")
    string(REPLACE "]]>" "]]&gt;" PARTHARBOR_SERVICE_${value} "${PARTHARBOR_SERVICE_${value}}")
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/resources/templates/*.xml.in)
  set(files)
  foreach(source ${sources})
    set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    get_filename_component(name ${source} NAME_WLE)
    file(READ ${source} text)
    string(CONFIGURE "${text}" text @ONLY)
    string(REGEX REPLACE "\n$" "" text "${text}")
    if(NOT CMAKE_HOST_WIN32) # file() writes CR LF by itself there
      string(REPLACE "\n" "\r\n" text "${text}")
    endif()
    file(WRITE ${folder}/${name}.new "${text}")
    file(COPY_FILE ${folder}/${name}.new ${folder}/${name} ONLY_IF_DIFFERENT)
    file(REMOVE ${folder}/${name}.new)
    list(APPEND files ${folder}/${name})
  endforeach()
  set(${result} ${files} PARENT_SCOPE)
endfunction()

# Lays the bundle out in a folder, as the folder resources/ has it, and compiles it, uncompressed.
function(dockwidget_resource_bundle folder templates result)
  set(resources ${CMAKE_SOURCE_DIR}/resources)
  file(GLOB_RECURSE artwork RELATIVE ${resources} CONFIGURE_DEPENDS ${resources}/Resource/*)
  set(files "")
  foreach(file ${templates} output.xml ${artwork} ${DOCKWIDGET_QM_FILES})
    if(IS_ABSOLUTE ${file})
      get_filename_component(file ${file} NAME)
    endif()
    string(APPEND files "        <file>${file}</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${folder}/3DPH.qrc @ONLY CONTENT
    "<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n    <qresource prefix=\"/3DPH\">\n@files@    </qresource>\n</RCC>\n")
  list(TRANSFORM artwork PREPEND ${resources}/)
  get_target_property(rcc Qt5::rcc IMPORTED_LOCATION)
  add_custom_command(
    OUTPUT ${folder}/qrc_3DPH.cpp
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${resources}/Resource ${folder}/Resource
    COMMAND ${CMAKE_COMMAND} -E copy ${resources}/output.xml ${DOCKWIDGET_QM_FILES} ${folder}
    COMMAND ${rcc} --no-compress --name DockWidget_3DPH --output ${folder}/qrc_3DPH.cpp ${folder}/3DPH.qrc
    DEPENDS ${folder}/3DPH.qrc ${resources}/output.xml ${artwork} ${templates} ${DOCKWIDGET_QM_FILES}
    VERBATIM)
  set(${result} ${folder}/qrc_3DPH.cpp PARENT_SCOPE)
endfunction()
