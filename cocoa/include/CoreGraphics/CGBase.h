// The scalar type of Core Graphics and the macros of its declarations.
#pragma once

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define CG_EXTERN extern "C" __attribute__((visibility("default")))
#else
#define CG_EXTERN extern __attribute__((visibility("default")))
#endif
#define CG_INLINE static inline

typedef double CGFloat;
