# dockwidget_add_test(NAME FooTest SOURCES FooTest.cpp [LIBRARIES ...] [TIMEOUT seconds] [RESOURCE_LOCK name]
#                     [ARGUMENTS ...])
# A QtTest program and its CTest entry. It runs offscreen, in a home of its own in the build tree so that no
# setting or cache of the person at the machine is read or written, and with Qt's logging as shipped.
# test_support and QtTest are always linked.
function(dockwidget_add_test)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;TIMEOUT;RESOURCE_LOCK" "SOURCES;LIBRARIES;ARGUMENTS")
  if(arg_UNPARSED_ARGUMENTS OR NOT arg_NAME OR NOT arg_SOURCES)
    message(FATAL_ERROR "dockwidget_add_test needs NAME and SOURCES; not understood: '${arg_UNPARSED_ARGUMENTS}'")
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()

  add_executable(${arg_NAME} ${arg_SOURCES})
  set_target_properties(${arg_NAME} PROPERTIES AUTOMOC ON)
  target_link_libraries(${arg_NAME} PRIVATE ${arg_LIBRARIES} test_support Qt5::Test)
  dockwidget_warnings(${arg_NAME})

  add_test(NAME ${arg_NAME} COMMAND ${arg_NAME} ${arg_ARGUMENTS})
  dockwidget_set_test_environment(${arg_NAME})
  set_tests_properties(${arg_NAME} PROPERTIES TIMEOUT ${arg_TIMEOUT})
  if(arg_RESOURCE_LOCK)
    set_tests_properties(${arg_NAME} PROPERTIES RESOURCE_LOCK ${arg_RESOURCE_LOCK})
  endif()
endfunction()

# dockwidget_set_test_environment(NAME): has the CTest entry run as dockwidget_add_test() says.
function(dockwidget_set_test_environment name)
  set(home ${CMAKE_BINARY_DIR}/test-homes/${name})
  file(MAKE_DIRECTORY ${home}/runtime)
  file(CHMOD ${home}/runtime PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;HOME=${home};XDG_CONFIG_HOME=${home}/config;XDG_CACHE_HOME=${home}/cache;XDG_DATA_HOME=${home}/data;XDG_RUNTIME_DIR=${home}/runtime"
    ENVIRONMENT_MODIFICATION "QT_LOGGING_RULES=unset:;QT_LOGGING_CONF=unset:;QT_MESSAGE_PATTERN=unset:;QT_STYLE_OVERRIDE=unset:;QT_SCALE_FACTOR=unset:;QT_FATAL_WARNINGS=unset:")
  if(DOCKWIDGET_SANITIZERS)
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT
      "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0")
  endif()
endfunction()
