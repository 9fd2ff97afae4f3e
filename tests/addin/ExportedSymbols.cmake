# cmake -D NM=nm -D LIBRARY=file -P ExportedSymbols.cmake: compares what a library exports with the list here.
set(expected
  "DockWidgetApplication::AddRibbonItem(pvString const&, pvString const&, pvString const&)"
  "DockWidgetApplication::CreateUserInterfaceAndCommands()"
  "DockWidgetApplication::DockWidgetApplication(DockWidgetApplication const&)"
  "DockWidgetApplication::DockWidgetApplication(pvApplication_c*)"
  "DockWidgetApplication::ExecuteNotify()"
  "DockWidgetApplication::ExecuteNotifyHook(void*)"
  "DockWidgetApplication::GetLogInPage()"
  "DockWidgetApplication::GetPVApp()"
  "DockWidgetApplication::LoadTranslator()"
  "DockWidgetApplication::RemoveRibbonRowItem()"
  "DockWidgetApplication::appID"
  "DockWidgetApplication::createDockWidget()"
  "DockWidgetApplication::m_LogInPage"
  "DockWidgetApplication::operator=(DockWidgetApplication const&)"
  "DockWidgetApplication::unLoadTranslator()"
  "DockWidgetApplication::~DockWidgetApplication()"
  "HasSignedByPlotvane"
  "connectToPlotvane"
  "disconnectFromPlotvane"
  "vtable for DockWidgetApplication")

execute_process(COMMAND ${NM} --dynamic --defined-only --demangle ${LIBRARY} OUTPUT_VARIABLE symbols
                COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "(^|\n)[0-9a-f]+ [A-Za-z] " "\\1" symbols "${symbols}")
string(STRIP "${symbols}" symbols)
string(REPLACE "\n" ";" symbols "${symbols}")
list(REMOVE_DUPLICATES symbols) # constructors and destructors have two symbols each
list(SORT symbols)
list(SORT expected)
if(NOT symbols STREQUAL expected)
  string(REPLACE ";" "\n  " symbols "${symbols}")
  message(FATAL_ERROR "${LIBRARY} exports\n  ${symbols}")
endif()
