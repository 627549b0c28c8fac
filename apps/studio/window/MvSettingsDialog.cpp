// SPDX-License-Identifier: LGPL-2.1-or-later
#include "window/MvSettingsDialog.h"

#include "MvCore/MvTranslations.h"
#include "common/MvStudioMessage.h"
#include "common/MvStudioSettings.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MvSettingsDialog::MvSettingsDialog(QWidget *parent)
    : QDialog(parent)
    , m_language(new QComboBox(this))
    , m_theme(new QComboBox(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"settingsDialog"_s);
    setWindowTitle(tr("Einstellungen"));
    m_language->setObjectName(u"settingsLanguage"_s);
    m_language->addItem(tr("Wie das System"), QString());
    for (const QString &language : MvTranslations::languages())
        m_language->addItem(MvTranslations::nameOf(language), language);
    m_language->setCurrentIndex(qMax(0, m_language->findData(MvStudioSettings::language())));
    m_theme->setObjectName(u"settingsTheme"_s);
    m_theme->addItem(tr("Wie das System"), u"system"_s);
    m_theme->addItem(tr("Hell"), u"light"_s);
    m_theme->addItem(tr("Dunkel"), u"dark"_s);
    m_theme->setCurrentIndex(qMax(0, m_theme->findData(MvStudioSettings::theme())));

    auto *hint = new QLabel(tr("Eine andere Sprache gilt ab dem nächsten Start."), this);
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto *form = new QFormLayout;
    form->addRow(tr("&Sprache:"), m_language);
    form->addRow(QString(), hint);
    form->addRow(tr("&Farben:"), m_theme);
    QDialogButtonBox *buttons = MvStudioMessage::createButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addStretch();
    column->addWidget(buttons);
}

void MvSettingsDialog::accept()
{
    const QString language = m_language->currentData().toString();
    const QString theme = m_theme->currentData().toString();
    const bool hasNewLanguage = language != MvStudioSettings::language();
    const bool hasNewTheme = theme != MvStudioSettings::theme();
    MvStudioSettings::setLanguage(language);
    MvStudioSettings::setTheme(theme);
    QDialog::accept();
    if (hasNewTheme)
        Q_EMIT themeChanged();
    if (hasNewLanguage)
        Q_EMIT languageChanged();
}
