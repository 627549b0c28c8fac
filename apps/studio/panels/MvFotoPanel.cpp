// SPDX-License-Identifier: LGPL-2.1-or-later
#include "panels/MvFotoPanel.h"

#include "common/MvStudioMerge.h"
#include "pages/MvPageSelection.h"
#include "panels/MvCommonNumberBox.h"
#include "panels/MvCommonSlider.h"
#include "panels/MvCommonValue.h"
#include "panels/MvPageEdits.h"

#include "MvGUIWidgets/MvColorSelectionButton.h"
#include "MvGUIWidgets/MvFormFields.h"
#include "MvGUIWidgets/MvIconRegistry.h"
#include "MvGUIWidgets/MvSpinBox.h"
#include "MvPaint/MvPrintableText.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int zoomSteps = 300;
constexpr double tenths = 10.0; // of a millimetre
constexpr int longestName = 34;

double zoomAt(int step)
{
    return std::exp2(step * std::log2(MvFotoElement::largestZoom) / zoomSteps);
}

QString nameOfZoom(int step)
{
    return MvFotoPanel::tr("%1 %").arg(std::lround(100.0 * zoomAt(step)));
}

int zoomStepOf(const MvFotoElement &foto)
{
    return int(std::lround(std::log2(foto.zoom()) * zoomSteps / std::log2(MvFotoElement::largestZoom)));
}

} // namespace

MvFotoPanel::MvFotoPanel(MvPageEdits *edits, MvPageSelection *selection, QWidget *parent)
    : MvPagePanel(edits, parent)
    , m_selection(selection)
    , m_name(new QLabel(this))
    , m_replace(new QPushButton(tr("Foto wählen …"), this))
    , m_remove(new QPushButton(tr("Entfernen"), this))
    , m_caption(new QLineEdit(this))
    , m_fit(new QComboBox(this))
    , m_zoom(new MvCommonSlider(nameOfZoom, this))
    , m_straighten(new MvCommonNumberBox(this))
    , m_turnLeft(new QPushButton(this))
    , m_turnRight(new QPushButton(this))
    , m_place(new QComboBox(this))
    , m_share(new MvSpinBox(this))
    , m_border(new MvCommonNumberBox(this))
    , m_borderColor(new MvColorSelectionButton(false, this))
{
    setObjectName(u"photoPanel"_s);
    QVBoxLayout *column = addScrollingColumn();
    m_form = new QFormLayout;
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addFile(m_form);
    addCrop(m_form);
    addTone(m_form);
    addPlace(m_form);
    addBorder(m_form);
    column->addLayout(m_form);
    column->addStretch(1);
    MvFormFields::setTabOrder(
        {m_turnRight, m_brightness, m_contrast, m_untouched, m_place, m_share, m_border, m_borderColor});
    MvFormFields::keepWheelOut({m_fit, m_zoom, m_straighten, m_brightness, m_contrast, m_place, m_share, m_border});
    connect(selection, &MvPageSelection::changed, this, &MvPagePanel::renew);
}

void MvFotoPanel::addFile(QFormLayout *form)
{
    m_name->setObjectName(u"photoName"_s);
    m_name->setTextFormat(Qt::PlainText);
    m_replace->setObjectName(u"photoReplace"_s);
    m_remove->setObjectName(u"photoRemove"_s);
    connect(m_replace, &QPushButton::clicked, this, &MvFotoPanel::fileRequested);
    connect(m_remove, &QPushButton::clicked, this, [this] {
        editFotos([](MvFotoElement &foto) { foto = foto.withPictureOf(MvFotoElement()); }, tr("Foto entfernen"));
    });
    m_caption->setObjectName(u"photoCaption"_s);
    connect(m_caption, &QLineEdit::textEdited, this, [this](const QString &text) {
        editFotos([&text](MvFotoElement &foto) { foto.setCaption(text); }, tr("Bildunterschrift ändern"),
                  MvStudioMerge::FotoCaption);
    });
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_replace);
    buttons->addWidget(m_remove);
    buttons->addStretch(1);
    form->addRow(m_name);
    form->addRow(buttons);
    form->addRow(tr("Unterschrift:"), m_caption);
}

void MvFotoPanel::addCrop(QFormLayout *form)
{
    m_fit->setObjectName(u"photoFit"_s);
    m_fit->addItem(tr("Füllt den Rahmen"), int(MvFotoElement::Fit::Fill));
    m_fit->addItem(tr("Ganz zu sehen"), int(MvFotoElement::Fit::Whole));
    connect(m_fit, &QComboBox::activated, this, [this](int row) {
        const auto fit = MvFotoElement::Fit(m_fit->itemData(row).toInt());
        editFrames([fit](MvFotoElement &foto) { foto.setFit(fit); }, tr("Foto einpassen"));
    });
    m_zoom->setObjectName(u"photoZoomSlider"_s);
    m_zoom->setRange(0, zoomSteps);
    m_zoom->setPageStep(zoomSteps / 12);
    connect(m_zoom, &QSlider::valueChanged, this, [this](int value) {
        const double zoom = zoomAt(value);
        editFotos([zoom](MvFotoElement &foto) { foto.setZoom(zoom); }, tr("Foto vergrößern"), MvStudioMerge::FotoZoom);
    });
    m_straighten->setObjectName(u"photoStraighten"_s);
    m_straighten->setLimits(-MvFotoElement::largestStraightening, MvFotoElement::largestStraightening);
    m_straighten->setSingleStep(0.5);
    m_straighten->setDecimals(1);
    m_straighten->setSuffix(tr("°"));
    connect(m_straighten, &MvCommonNumberBox::entered, this, [this](double degrees) {
        editFotos([degrees](MvFotoElement &foto) { foto.setStraightening(degrees); }, tr("Foto ausrichten"),
                  MvStudioMerge::FotoStraightening);
    });
    const auto turn = [this](QPushButton *button, const char *name, const QString &icon, const QString &text, int by) {
        button->setObjectName(QLatin1StringView(name));
        button->setIcon(MvIconRegistry::instance().icon(icon));
        button->setToolTip(text);
        button->setAccessibleName(text);
        connect(button, &QPushButton::clicked, this, [this, by] {
            editFotos([by](MvFotoElement &foto) { foto.setQuarterTurns(foto.quarterTurns() + by); }, tr("Foto drehen"));
        });
    };
    turn(m_turnLeft, "photoTurnLeft", u"ico_studio_undo"_s, tr("Gegen den Uhrzeigersinn drehen"), 3);
    turn(m_turnRight, "photoTurnRight", u"ico_studio_redo"_s, tr("Im Uhrzeigersinn drehen"), 1);
    auto *turns = new QHBoxLayout;
    turns->addWidget(m_straighten, 1);
    turns->addWidget(m_turnLeft);
    turns->addWidget(m_turnRight);
    form->addRow(tr("Ausschnitt:"), m_fit);
    form->addRow(tr("Zoom:"), m_zoom);
    form->addRow(tr("Drehen:"), turns);
    m_straighten->setAccessibleName(tr("Ausrichten um Grad"));
    m_zoom->setAccessibleName(tr("Zoom des Fotos"));
}

MvCommonSlider *MvFotoPanel::createCorrection(const char *objectName, const QString &name, const QString &step,
                                              int mergeId, void (MvFotoElement::*set)(int))
{
    auto *slider = new MvCommonSlider([](int value) { return QString::number(value); }, this);
    slider->setObjectName(QLatin1StringView(objectName));
    slider->setAccessibleName(name);
    slider->setRange(-MvFotoElement::strongestCorrection, MvFotoElement::strongestCorrection);
    slider->setPageStep(MvFotoElement::strongestCorrection / 5);
    connect(slider, &QSlider::valueChanged, this, [this, step, mergeId, set](int value) {
        editFotos([value, set](MvFotoElement &foto) { (foto.*set)(value); }, step, mergeId);
    });
    return slider;
}

void MvFotoPanel::addTone(QFormLayout *form)
{
    m_brightness = createCorrection("photoBrightness", tr("Helligkeit des Fotos"), tr("Helligkeit des Fotos ändern"),
                                    MvStudioMerge::FotoBrightness, &MvFotoElement::setBrightness);
    m_contrast = createCorrection("photoContrast", tr("Kontrast des Fotos"), tr("Kontrast des Fotos ändern"),
                                  MvStudioMerge::FotoContrast, &MvFotoElement::setContrast);
    m_untouched = new QPushButton(tr("Wie aufgenommen"), this);
    m_untouched->setObjectName(u"photoUntouched"_s);
    m_untouched->setToolTip(tr("Helligkeit und Kontrast wieder so, wie das Foto sie hat"));
    connect(m_untouched, &QPushButton::clicked, this, [this] {
        editFotos(
            [](MvFotoElement &foto) {
                foto.setBrightness(0);
                foto.setContrast(0);
            },
            tr("Helligkeit des Fotos ändern"));
    });
    form->addRow(tr("Helligkeit:"), m_brightness);
    form->addRow(tr("Kontrast:"), m_contrast);
    form->addRow(QString(), m_untouched);
}

/// On a page without a template.
void MvFotoPanel::addPlace(QFormLayout *form)
{
    m_place->setObjectName(u"photoPlace"_s);
    m_place->addItem(tr("Oben"), int(MvFotoFrame::Placement::Top));
    m_place->addItem(tr("Links"), int(MvFotoFrame::Placement::Left));
    m_place->addItem(tr("Rechts"), int(MvFotoFrame::Placement::Right));
    connect(m_place, &QComboBox::activated, this, &MvFotoPanel::editPlace);
    m_share->setObjectName(u"photoShare"_s);
    m_share->setRange(int(MvFotoFrame::minimumShare * 100), int(MvFotoFrame::maximumShare * 100));
    m_share->setSuffix(tr(" % der Seite"));
    connect(m_share, &QSpinBox::valueChanged, this, &MvFotoPanel::editPlace);
    form->addRow(tr("Platz:"), m_place);
    form->addRow(tr("Größe:"), m_share);
}

void MvFotoPanel::addBorder(QFormLayout *form)
{
    m_border->setObjectName(u"photoBorder"_s);
    m_border->setLimits(0.0, MvFotoElement::widestBorder / tenths);
    m_border->setSingleStep(0.5);
    m_border->setDecimals(1);
    m_border->setSuffix(tr(" mm"));
    connect(m_border, &MvCommonNumberBox::entered, this, [this](double width) {
        editFrames(
            [width](MvFotoElement &foto) {
                MvFotoElement::Border border = foto.border();
                border.width = std::round(width * tenths);
                foto.setBorder(border);
            },
            tr("Rand des Fotos ändern"), MvStudioMerge::FotoBorder);
    });
    m_borderColor->setObjectName(u"photoBorderColor"_s);
    m_borderColor->setAccessibleName(tr("Farbe des Randes"));
    connect(m_borderColor, &MvColorSelectionButton::colorChanged, this, [this](const QColor &color) {
        editFrames(
            [&color](MvFotoElement &foto) {
                MvFotoElement::Border border = foto.border();
                border.color = color;
                foto.setBorder(border);
            },
            tr("Rand des Fotos ändern"));
    });
    auto *row = new QHBoxLayout;
    row->addWidget(m_border, 1);
    row->addWidget(m_borderColor);
    form->addRow(tr("Rand:"), row);
    m_border->setAccessibleName(tr("Breite des Randes"));
}

QList<MvFotoElement> MvFotoPanel::frames() const
{
    const QList<MvPageElement> elements = edits()->page().elementsOn(edits()->document().format());
    QList<MvFotoElement> frames;
    for (const int number : m_selection->elementsOfKind()) {
        const MvPageElement element = elements.value(number);
        if (element.foto())
            frames.append(*element.foto());
    }
    return frames;
}

void MvFotoPanel::showPage()
{
    const QList<MvFotoElement> frames = this->frames();
    if (m_selection->kind() != MvPageSelection::Kind::Foto || frames.isEmpty())
        return;
    QList<MvFotoElement> fotos = frames;
    fotos.removeIf([](const MvFotoElement &frame) { return frame.isEmpty(); });
    showFile(fotos, frames.size());
    showPicture(fotos.isEmpty() ? frames : fotos);
    showFrame(frames);
    for (QWidget *control : std::initializer_list<QWidget *>{m_remove, m_caption, m_zoom, m_straighten, m_turnLeft,
                                                             m_turnRight, m_brightness, m_contrast})
        control->setEnabled(!fotos.isEmpty());
    const MvCalendarPage page = edits()->page();
    const bool isOwnPlace = page.isSimple() && m_selection->elements() == QList<int>{0};
    m_form->setRowVisible(m_place, isOwnPlace);
    m_form->setRowVisible(m_share, isOwnPlace);
    m_place->setCurrentIndex(m_place->findData(int(page.fotoFrame().placement())));
    m_share->setValue(int(std::lround(page.fotoFrame().share() * 100.0)));
}

void MvFotoPanel::showFile(const QList<MvFotoElement> &fotos, qsizetype frameCount)
{
    QStringList paths;
    for (const MvFotoElement &foto : fotos)
        paths.append(QDir::toNativeSeparators(foto.path()));
    const bool isThere = !fotos.isEmpty();
    if (fotos.size() > 1)
        m_name->setText(tr("%n Fotos", nullptr, int(fotos.size())));
    else if (isThere)
        m_name->setText(MvPrintableText::inShort(QFileInfo(fotos.constLast().path()).fileName(), longestName));
    else
        m_name->setText(frameCount > 1 ? tr("Diese Rahmen sind leer.") : tr("Dieser Rahmen ist leer."));
    m_name->setToolTip(paths.join(u'\n'));
    m_replace->setText(isThere ? tr("Ersetzen …") : tr("Foto wählen …"));
    m_replace->setEnabled(frameCount == 1); // one file is for one frame
}

void MvFotoPanel::showPicture(const QList<MvFotoElement> &fotos)
{
    const MvFotoElement &last = fotos.constLast();
    MvCommonValue::show(m_caption, MvCommonValue::of(fotos, &MvFotoElement::caption),
                        tr("steht dort, wo die Vorlage Platz hat"));
    m_zoom->show(MvCommonValue::of(fotos, zoomStepOf), zoomStepOf(last));
    m_straighten->show(MvCommonValue::of(fotos, &MvFotoElement::straightening), last.straightening());
    m_brightness->show(MvCommonValue::of(fotos, &MvFotoElement::brightness), last.brightness());
    m_contrast->show(MvCommonValue::of(fotos, &MvFotoElement::contrast), last.contrast());
    m_untouched->setEnabled(std::any_of(fotos.cbegin(), fotos.cend(), [](const MvFotoElement &foto) {
        return !foto.isEmpty() && (foto.brightness() != 0 || foto.contrast() != 0);
    }));
}

void MvFotoPanel::showFrame(const QList<MvFotoElement> &frames)
{
    const auto width = [](const MvFotoElement &frame) { return frame.border().width / tenths; };
    MvCommonValue::show(
        m_fit, MvCommonValue::of(frames, [](const MvFotoElement &frame) { return QVariant(int(frame.fit())); }));
    m_border->show(MvCommonValue::of(frames, width), width(frames.constLast()));
    MvCommonValue::show(m_borderColor,
                        MvCommonValue::of(frames, [](const MvFotoElement &frame) { return frame.border().color; }));
}

/// Each of them for itself, in one step.
void MvFotoPanel::editChosen(const FotoEdit &edit, const QString &text, int mergeId, bool isForEmptyToo)
{
    if (isShowing() || frames().isEmpty())
        return;
    const MvPageFormat format = edits()->document().format();
    edits()->editCurrent(
        [&](MvCalendarPage &page) {
            const QList<MvPageElement> elements = page.elementsOn(format);
            for (const int number : m_selection->elementsOfKind()) {
                MvFotoElement foto = *elements.at(number).foto();
                if (foto.isEmpty() && !isForEmptyToo)
                    continue;
                edit(foto);
                page.setFoto(number, foto);
            }
        },
        text, mergeId);
}

void MvFotoPanel::editFotos(const FotoEdit &edit, const QString &text, int mergeId)
{
    editChosen(edit, text, mergeId, false);
}

void MvFotoPanel::editFrames(const FotoEdit &edit, const QString &text, int mergeId)
{
    if (edits()->scope() == MvPageEdits::Scope::CurrentPage) {
        editChosen(edit, text, mergeId, true);
        return;
    }
    if (isShowing())
        return;
    const MvPageFormat format = edits()->document().format();
    edits()->edit(
        [&](MvCalendarPage &page) {
            const QList<MvPageElement> elements = page.elementsOn(format);
            for (int number = 0; number < elements.size(); ++number) {
                if (!elements.at(number).foto())
                    continue;
                MvFotoElement foto = *elements.at(number).foto();
                edit(foto);
                page.setFoto(number, foto);
            }
        },
        text, mergeId);
}

/// Of all pages without a template that have a photo, or of this one.
void MvFotoPanel::editPlace()
{
    if (isShowing())
        return;
    const auto placement = MvFotoFrame::Placement(m_place->currentData().toInt());
    const double share = m_share->value() / 100.0;
    edits()->edit(
        [placement, share](MvCalendarPage &page) {
            MvFotoFrame frame = page.fotoFrame();
            if (!page.isSimple() || !frame.isValid())
                return;
            frame.setPlacement(placement);
            frame.setShare(share);
            page.setFotoFrame(frame);
        },
        tr("Platz des Fotos ändern"), MvStudioMerge::ElementMove);
}
