# SPDX-License-Identifier: GPL-3.0-or-later

# What every target of ours is compiled with.
add_library(pellory_options INTERFACE)
target_compile_options(pellory_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wredundant-decls)
if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    # Compiled as one source, unnamed namespaces look to it as if they were in a header.
    target_compile_options(pellory_options INTERFACE -Wno-subobject-linkage)
endif()
target_compile_definitions(pellory_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)

# pellory_room(<name> SOURCES ... LINKS ... [USES ...] [PRECOMPILES ... | SHARES <room>])
#
# One folder of src/ is one static library, Pellory::<name>. LINKS are what its headers need, USES what only its
# sources need. Each room hands on its own folder and nothing else, so a header of a room that is not linked is not
# found: these lists are what keeps the arrows between the rooms pointing one way. PRECOMPILES are headers that most of
# the sources read, which includes them all the same: ./dev lint FILE reads it without these. SHARES names a room of the
# same libraries whose precompiled headers serve this one too.
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
