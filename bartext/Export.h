// Marks what the bartext library lets out of its hidden-visibility shared object.
#pragma once

#define BARTEXT_API __attribute__((visibility("default")))
