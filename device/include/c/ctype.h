// Character classes of the platform's C library.
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

int isalnum(int character);
int isalpha(int character);
int isdigit(int character);
int isspace(int character);
int isupper(int character);
int islower(int character);
int isxdigit(int character);
int tolower(int character);
int toupper(int character);

#ifdef __cplusplus
}
#endif
