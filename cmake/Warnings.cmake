# Warnings apply to the project's own targets only, not to third-party sources.
function(vorlex_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                           -Wno-sign-conversion)
endfunction()
