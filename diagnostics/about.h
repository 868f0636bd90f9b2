#pragma once

/* What the add-in says of itself. Plain macros: the version resource of the add-in's file is made of them
 * too. */
#define ORNAVEL_VERSION_MAJOR 3
#define ORNAVEL_VERSION_MINOR 9
#define ORNAVEL_VERSION_REVISION 9
#define ORNAVEL_VERSION "3.9.9"
#define ORNAVEL_COMMENTS "E-mail stationery for outgoing messages"
#define ORNAVEL_FILE_DESCRIPTION "Ornavel add-in"
#define ORNAVEL_PRODUCT "Brevant Ornavel"
#define ORNAVEL_COMPANY "Brevant"
