#pragma once

// What the library exports. Everything else in it is hidden; the linker's list (DockWidget.map) keeps
// template and standard-library symbols in, which visibility alone lets out.
#if defined(_WIN32)
#define DOCKWIDGET_API __declspec(dllexport)
#else
#define DOCKWIDGET_API __attribute__((visibility("default")))
#endif
