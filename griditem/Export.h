// Marks what the griditem library lets out of its hidden-visibility shared object.
#pragma once

#define GRIDITEM_API __attribute__((visibility("default")))
