// Marks the classes and functions that the design-model library offers to
// its users. Everything else in the library stays hidden.
#pragma once

#define NP_DESIGN_MODEL_API __attribute__((visibility("default")))
