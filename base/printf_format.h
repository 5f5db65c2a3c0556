// Marks a function whose arguments follow a printf format, so that the
// compiler checks every call against the format.
//
// The Windows build prints through MinGW's C99 printf (%zu, %lld and numbers
// as on Linux), which the compiler knows as "gnu_printf"; plain "printf"
// would check the calls against the old Windows runtime's formats instead.
#pragma once

#if defined(__MINGW32__)
#define KVRVIPS_PRINTF_FORMAT(format_index, first_argument) \
  __attribute__((format(gnu_printf, format_index, first_argument)))
#else
#define KVRVIPS_PRINTF_FORMAT(format_index, first_argument) \
  __attribute__((format(printf, format_index, first_argument)))
#endif
