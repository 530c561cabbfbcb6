# SPDX-FileCopyrightText: 2026 The telecfg authors
# SPDX-License-Identifier: MIT
# Warnings are errors in telecfg's own targets only; nothing here reaches a host.
function(telecfg_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Werror)
endfunction()

set(TELECFG_SANITIZE "" CACHE STRING "Sanitizers for the project's own targets (e.g. address,undefined)")
if(TELECFG_SANITIZE)
  add_compile_options(-fsanitize=${TELECFG_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${TELECFG_SANITIZE})
endif()
