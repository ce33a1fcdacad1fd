# SPDX-License-Identifier: GPL-3.0-or-later

# The options of all our targets.
add_library(pellory_options INTERFACE)
target_compile_options(pellory_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wredundant-decls)
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # It takes unnamed namespaces of included sources for those of a header.
    target_compile_options(pellory_options INTERFACE -Wno-subobject-linkage)
endif()
target_compile_definitions(pellory_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)

# Relocations are read at each start; of those that refer to no library most take no room when packed.
include(CheckLinkerFlag)
check_linker_flag(CXX -Wl,--fatal-warnings,-z,pack-relative-relocs PELLORY_PACKS_RELOCATIONS)
if(PELLORY_PACKS_RELOCATIONS)
    target_link_options(pellory_options INTERFACE -Wl,-z,pack-relative-relocs)
endif()

# pellory_room(<name> SOURCES ... LINKS ... [USES ...] [PRECOMPILES ... | SHARES <room>])
#
# A folder of src/ is a static library, Pellory::<name>. LINKS are what its headers need, USES what only its sources need.
# A room exports only its own folder as an include path, so headers of a room that is not linked are not found: these lists
# keep the arrows between the rooms pointing one way. PRECOMPILES are headers that most of the sources include; sources
# include them explicitly as well, because ./dev lint reads them without precompiled headers. SHARES names a room with the
# same libraries whose precompiled headers are used here too.
function(pellory_room name)
    cmake_parse_arguments(ROOM "" "SHARES" "SOURCES;LINKS;USES;PRECOMPILES" ${ARGN})
    add_library(pellory_${name} STATIC ${ROOM_SOURCES})
    add_library(Pellory::${name} ALIAS pellory_${name})
    target_include_directories(pellory_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(pellory_${name} PUBLIC ${ROOM_LINKS} PRIVATE ${ROOM_USES} pellory_options)
    if(ROOM_SHARES)
        target_precompile_headers(pellory_${name} REUSE_FROM pellory_${ROOM_SHARES})
    else()
        target_precompile_headers(pellory_${name} PRIVATE ${ROOM_PRECOMPILES})
    endif()
endfunction()
