# cmake -D NPM=... -D FOLDER=... -P InstallPackages.cmake
# Installs the packages that FOLDER's lock file names, unless they are there.
set(stamp ${FOLDER}/node_modules/.installed-lock)
file(SHA256 ${FOLDER}/package-lock.json wanted)
if(EXISTS ${stamp})
  file(READ ${stamp} installed)
  if(installed STREQUAL wanted)
    return()
  endif()
endif()

if(NOT NPM)
  message(FATAL_ERROR "npm was not found; the package \"npm\" brings it")
endif()
execute_process(COMMAND ${NPM} ci --ignore-scripts --no-audit --no-fund --loglevel=error
                WORKING_DIRECTORY ${FOLDER} RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "npm could not install the packages of ${FOLDER}/package-lock.json")
endif()
file(WRITE ${stamp} ${wanted})
