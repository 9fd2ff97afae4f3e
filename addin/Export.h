#pragma once

// What the library exports. Everything else in it is hidden; the linker's list (DockWidget.map) keeps
// template and standard-library symbols in, which visibility alone lets out.
#if defined(_WIN32)
#define DOCKWIDGET_API __declspec(dllexport)
#else
#define DOCKWIDGET_API __attribute__((visibility("default")))
#endif

// Around an exported class. Its private members and its base are of other libraries, which MSVC's C4251 and
// C4275 warn of; nobody links the class for them. GCC warns of a base without a virtual destructor; through
// the host's bases nothing of ours is deleted.
#if defined(_MSC_VER)
#define DOCKWIDGET_EXPORTED_CLASS_BEGIN __pragma(warning(push)) __pragma(warning(disable : 4251 4275))
#define DOCKWIDGET_EXPORTED_CLASS_END __pragma(warning(pop))
#elif defined(__GNUC__)
#define DOCKWIDGET_EXPORTED_CLASS_BEGIN                                                                      \
    _Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wnon-virtual-dtor\"")
#define DOCKWIDGET_EXPORTED_CLASS_END _Pragma("GCC diagnostic pop")
#else
#define DOCKWIDGET_EXPORTED_CLASS_BEGIN
#define DOCKWIDGET_EXPORTED_CLASS_END
#endif
