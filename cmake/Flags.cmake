# SPDX-License-Identifier: GPL-3.0-or-later
# Compiler and linker flags. Every target of the project links deckforge_flags.
add_library(deckforge_flags INTERFACE)

target_compile_options(deckforge_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(deckforge_flags INTERFACE QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS)

include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(DECKFORGE_SANITIZE)
    target_compile_options(deckforge_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(deckforge_flags INTERFACE -fsanitize=address,undefined)
elseif(NOT DECKFORGE_COVERAGE)
    # Files and pictures are untrusted input: limit what a bug in reading them can do.
    target_compile_options(deckforge_flags INTERFACE
        -fstack-protector-strong -fstack-clash-protection
        $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
    target_link_options(deckforge_flags INTERFACE -Wl,-z,relro,-z,now)
endif()
if(DECKFORGE_FUZZ)
    target_compile_options(deckforge_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(DECKFORGE_COVERAGE)
    target_compile_options(deckforge_flags INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(deckforge_flags INTERFACE --coverage)
endif()
