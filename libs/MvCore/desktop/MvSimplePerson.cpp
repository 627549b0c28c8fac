// SPDX-License-Identifier: LGPL-2.1-or-later
#include "MvCore/MvSimplePerson.h"

MvSimplePerson::MvSimplePerson(const QString &name, const QDate &birthday, const QImage &image, const QUuid &uuid)
    : m_name(name)
    , m_birthday(birthday)
    , m_image(image)
    , m_uuid(uuid)
{}

MvSimplePerson::~MvSimplePerson() = default;
