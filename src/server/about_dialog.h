/* Numbers of the about box and its parts, for the resource script and for the code that fills it. */
#pragma once

#define VELLORA_ABOUT_DIALOG 100
#define VELLORA_ABOUT_TITLE 101
#define VELLORA_ABOUT_VERSION 102
#define VELLORA_ABOUT_PICTURE 103
