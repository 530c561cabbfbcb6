# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Warnings are errors in telecfg's own targets only; nothing here reaches a host.
# GCC and Clang: -Wall -Wextra. MSVC: /W4 (its -Wall is every warning there is, most of them
# about the toolkit's headers), /permissive- for the standard's rules, /utf-8 because the
# sources hold Polish texts in UTF-8, /Zc:__cplusplus so the toolkit sees the real standard.
function(telecfg_warnings target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /WX /permissive- /utf-8 /Zc:__cplusplus)
  else()
    target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
  endif()
endfunction()

set(TELECFG_SANITIZE "" CACHE STRING "Sanitizers for the project's own targets (e.g. address,undefined)")
if(TELECFG_SANITIZE)
  add_compile_options(-fsanitize=${TELECFG_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${TELECFG_SANITIZE})
endif()
