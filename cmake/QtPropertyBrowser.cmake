# Qt Property Browser (the Qt Solutions component, BSD) is in no binary package of Debian. scripts/setup
# copies its sources from a Debian source package to the user's cache. Any other checkout works, too.

set(cache_home $ENV{XDG_CACHE_HOME})
if(NOT cache_home)
    set(cache_home $ENV{HOME}/.cache)
endif()
set(QTPROPERTYBROWSER_SOURCE_DIR ${cache_home}/kavo/qtpropertybrowser/src CACHE PATH
    "Folder src of the Qt Property Browser component")
set(src ${QTPROPERTYBROWSER_SOURCE_DIR})
if(NOT EXISTS ${src}/qtpropertybrowser.h)
    message(FATAL_ERROR "No Qt Property Browser in '${src}'. Run scripts/setup, which fetches it, or set "
        "QTPROPERTYBROWSER_SOURCE_DIR to the component's src folder.")
endif()

add_library(QtPropertyBrowser SHARED
    ${src}/qtpropertybrowser.cpp ${src}/qtpropertymanager.cpp ${src}/qteditorfactory.cpp
    ${src}/qtvariantproperty.cpp ${src}/qttreepropertybrowser.cpp ${src}/qtpropertybrowserutils.cpp
    ${src}/qtpropertybrowser.qrc)
# Its export macro is empty outside Windows.
set_target_properties(QtPropertyBrowser PROPERTIES
    AUTOMOC ON AUTORCC ON CXX_VISIBILITY_PRESET default VISIBILITY_INLINES_HIDDEN OFF)
target_include_directories(QtPropertyBrowser SYSTEM PUBLIC ${src})
target_compile_options(QtPropertyBrowser PRIVATE -w)
target_link_libraries(QtPropertyBrowser PUBLIC Qt5::Widgets)
