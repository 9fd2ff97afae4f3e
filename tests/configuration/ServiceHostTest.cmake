# Configures the add-in alone in the folder SCRATCH, for several service hosts and an account that has to be escaped.

# configure(host result output): configures for a host.
function(configure host result output)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${SCRATCH} -G ${GENERATOR} -D CMAKE_CXX_COMPILER=${COMPILER}
            -D "CMAKE_PREFIX_PATH=${PREFIX}" -D DOCKWIDGET_DEVELOPMENT=OFF
            -D "PARTHARBOR_SERVICE_HOST=${host}" -D "PARTHARBOR_SERVICE_PASSWORD=a]]>b&<c>"
    RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE text)
  string(REGEX REPLACE "[ \n]+" " " text "${text}")
  set(${result} ${status} PARENT_SCOPE)
  set(${output} "${text}" PARENT_SCOPE)
endfunction()

function(expect_refusal host message)
  configure("${host}" result output)
  if(result EQUAL 0 OR NOT output MATCHES "${message}")
    message(SEND_ERROR "'${host}' is to be refused with '${message}', but there is: ${output}")
  endif()
endfunction()

expect_refusal("https://catalog.example.com" "is no host: .* without scheme and path")
expect_refusal("catalog.example.com/ContentWS" "is no host: .* without scheme and path")
expect_refusal("" "is no host")
expect_refusal("bücher.example" "punycode")
expect_refusal("catalog.example.com:65536" "ports go from 1 to 65535")

foreach(host xn--bcher-kva.example:65535 [::1]:8443 catalog.example.com)
  configure(${host} result output)
  if(NOT result EQUAL 0)
    message(SEND_ERROR "'${host}' is to be taken, but there is: ${output}")
  endif()
endforeach()
file(READ ${SCRATCH}/resources/dockwidget_for_host/TokenXMLFile.xml template)
foreach(part "<password>a]]&gt;b&amp;&lt;c></password>" "xmlns=\"http://catalog.example.com/Content\"")
  string(FIND "${template}" "${part}" at)
  if(at EQUAL -1)
    message(SEND_ERROR "The template lacks '${part}':\n${template}")
  endif()
endforeach()
