// titlepicture.h -- the pictures of the title box and of the welcome, painted when they are needed.
#pragma once

#include <QPixmap>

QPixmap TitlePicture(qreal pixelRatio);
QPixmap WelcomePicture(qreal pixelRatio);
