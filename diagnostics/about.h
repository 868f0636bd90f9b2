#pragma once

/* What the add-in says of itself. Plain macros: the version resource of the add-in's file is made of them
 * too. */
#define ORNAVEL_VERSION "3.9.9"
#define ORNAVEL_VERSION_NUMBERS 3, 9, 9, 0
#define ORNAVEL_COMMENTS "Dresses outgoing messages in the stationery and signature that the user chose."
#define ORNAVEL_FILE_DESCRIPTION "Ornavel e-mail stationery add-in"
