#include "host/pictures/dialogpicture.h"
#include "host/program/terminal/picturelibrary.h"

const host::PictureLibrary host::arxhostPictures = {
    .openInk = plot::openInk, .textWidth = plot::textWidth, .drawDialog = drawDialog};
