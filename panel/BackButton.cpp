#include "panel/BackButton.h"

#include <QPushButton>

void setUpBackButton(QPushButton* button)
{
    button->setGeometry(0, 0, 20, 20);
    button->setIcon(QIcon(QLatin1String(":/3DPH/Resource/nav-back-20.svg")));
    button->setIconSize(button->size());
    button->setToolTip(QLatin1String("Back"));
}
