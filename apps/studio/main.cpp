#include "MvStudioApplication.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    MvStudioApplication studio;
    return studio.start() ? QApplication::exec() : 0;
}
