// Marks the classes and functions that the design-model library offers to
// its users. Everything else in the library stays hidden.
#pragma once

#if defined(_WIN32)
#if defined(NP_DESIGN_MODEL_BUILDING)
#define NP_DESIGN_MODEL_API __declspec(dllexport)
#else
#define NP_DESIGN_MODEL_API __declspec(dllimport)
#endif
#else
#define NP_DESIGN_MODEL_API __attribute__((visibility("default")))
#endif
