/*
 * kovrel - Eurocontrol ASTERIX decoder and encoder.
 *
 * export.h: the export macro and the C linkage helpers shared by every
 * public header. Applications never need to include this file directly.
 */
#ifndef KOVREL_EXPORT_H
#define KOVREL_EXPORT_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#  if defined(KOVREL_BUILDING)
#    define KOVREL_API __declspec(dllexport)
#  else
#    define KOVREL_API
#  endif
#else
#  define KOVREL_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
#  define KOVREL_BEGIN_DECLS extern "C" {
#  define KOVREL_END_DECLS }
#else
#  define KOVREL_BEGIN_DECLS
#  define KOVREL_END_DECLS
#endif

#if defined(__GNUC__) || defined(__clang__)
#  define KOVREL_PRINTF(fmt_index, first_arg) __attribute__((format(printf, fmt_index, first_arg)))
#else
#  define KOVREL_PRINTF(fmt_index, first_arg)
#endif

#endif /* KOVREL_EXPORT_H */
