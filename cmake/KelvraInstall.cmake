# What `cmake --install` lays out, in three components: the module, the client that comes with it, and what a developer
# needs to build against them (headers, CMake package, contract kit).
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(KELVRA_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/kelvra_login)
set(KELVRA_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/kelvra_login)
set(KELVRA_INSTALL_DATADIR ${CMAKE_INSTALL_DATADIR}/kelvra_login)

# The libraries find each other beside themselves, and the program finds them, wherever the whole is put.
if(NOT WIN32)
    file(RELATIVE_PATH libraries_from_programs /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set(CMAKE_INSTALL_RPATH $ORIGIN $ORIGIN/${libraries_from_programs})
endif()

# kelvra_describe(<target>): the version in a DLL or program, where Windows shows it.
function(kelvra_describe target)
    if(WIN32)
        get_target_property(type ${target} TYPE)
        set(description "kelvra_client: ${target}")
        if(target STREQUAL "kelvra_login")
            set(description "kelvra_login: login of a video-management client")
        endif()
        if(type STREQUAL "EXECUTABLE")
            set(file_type VFT_APP)
            set(icon "1 ICON \"${PROJECT_SOURCE_DIR}/client/resources/images/app_icon.ico\"")
        else()
            set(file_type VFT_DLL)
        endif()
        configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${target}_version.rc @ONLY)
        target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
    endif()
endfunction()

# kelvra_install_library(<target> <component> [<header>...])
# Installs a shared library, versioned, with its part of the CMake package; the headers are given from the root of the
# tree, as they are included.
function(kelvra_install_library target component)
    set_target_properties(
        ${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
    )
    kelvra_describe(${target})
    install(
        TARGETS ${target}
        EXPORT kelvra_login-${component}
        RUNTIME COMPONENT ${component}
        LIBRARY COMPONENT ${component} NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development
    )
    foreach(header IN LISTS ARGN)
        cmake_path(GET header PARENT_PATH folder)
        install(
            FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION ${KELVRA_INSTALL_INCLUDEDIR}/${folder}
            COMPONENT development
        )
    endforeach()
endfunction()

# kelvra_install_package(<part>...): the CMake package with the parts that have been installed. As a part of somebody
# else's tree there is none: its targets are there.
function(kelvra_install_package)
    if(NOT PROJECT_IS_TOP_LEVEL)
        return()
    endif()
    foreach(part IN LISTS ARGN)
        install(
            EXPORT kelvra_login-${part} NAMESPACE kelvra_login:: DESTINATION ${KELVRA_INSTALL_CMAKEDIR}
            COMPONENT development
        )
    endforeach()
    configure_package_config_file(
        cmake/kelvra_login-config.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/kelvra_login-config.cmake
        INSTALL_DESTINATION ${KELVRA_INSTALL_CMAKEDIR}
        PATH_VARS KELVRA_INSTALL_INCLUDEDIR KELVRA_INSTALL_DATADIR
    )
    write_basic_package_version_file(
        ${CMAKE_CURRENT_BINARY_DIR}/kelvra_login-config-version.cmake COMPATIBILITY SameMajorVersion
    )
    install(
        FILES ${CMAKE_CURRENT_BINARY_DIR}/kelvra_login-config.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/kelvra_login-config-version.cmake
        DESTINATION ${KELVRA_INSTALL_CMAKEDIR} COMPONENT development
    )
endfunction()
