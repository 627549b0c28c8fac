#include "MvCore/MvApplicationLocale.h"

template class MvSingleton<MvApplicationLocale>;
