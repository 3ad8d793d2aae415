#include <brask/tools.h>

int BORDER = 3;
int SPACE = 6;
int CURSEUR = 16;
int BUT_DIM = 25;
int BUT_LIST = BUT_DIM; // follows what the build gives BUT_DIM, not what a host gives it later
int NUM_DIM = 48;
int VAL_DIM = 26;
int VAL_SMALL = 18;
unsigned char Tool_Looks = 0;
