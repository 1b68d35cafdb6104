// The viseme key curves with their drag sources, and the diphone list.
#include "GalleryRegistry.h"

#include "QDiphoneListWidget.h"
#include "QVisemeButton.h"
#include "QVisemeCurveWidgetLite.h"
#include "QVisemeListWidget.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWidget>

#include <cmath>

static const QStringList kVisemes = {
    QStringLiteral("AA"), QStringLiteral("AE"), QStringLiteral("AH"),  QStringLiteral("EE"),
    QStringLiteral("ER"), QStringLiteral("IH"), QStringLiteral("OH"),  QStringLiteral("OO"),
    QStringLiteral("UW"), QStringLiteral("FV"), QStringLiteral("MBP"), QStringLiteral("L"),
    QStringLiteral("TH"), QStringLiteral("SZ"), QStringLiteral("CH"),  QStringLiteral("W")
};

static QVisemeListWidget *makeVisemeList()
{
    auto *list = new QVisemeListWidget;
    list->addItems(kVisemes);
    return list;
}

static QVisemeButton *makeVisemeButton()
{
    auto *button = new QVisemeButton;
    button->setText(QStringLiteral("Drag to clear"));
    button->setToolTip(QStringLiteral("Drop on the curves to free the current viseme"));
    return button;
}

// A bell of weights rising to `peak` at `centre`, as keys from 0 to 1.
static QList<QPointF> bellKeys(double centre, double peak, int count)
{
    QList<QPointF> keys;
    for (int i = 0; i < count; ++i) {
        const double x = double(i) / (count - 1);
        keys.append(QPointF(x, peak * std::exp(-std::pow((x - centre) / 0.18, 2.0))));
    }
    return keys;
}

GALLERY_ENTRY(
    { 50, "Curves", "QVisemeCurveWidgetLite",
      "Weight keys of up to twelve visemes over one phoneme span. Click a slot button to make "
      "it current; click in the area to add a key, drag to move the selected key, right-click "
      "a key to delete it. Drag a name from the list onto a free slot button to claim it, or "
      "drag the clear button onto the curves to free the current slot.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *page = new QWidget;
          auto *layout = new QHBoxLayout(page);
          auto *sources = new QVBoxLayout;
          QVisemeListWidget *list = makeVisemeList();
          list->setFixedWidth(110);
          sources->addWidget(list, 1);
          sources->addWidget(makeVisemeButton());
          layout->addLayout(sources);

          auto *curves = new QVisemeCurveWidgetLite(page);
          curves->setFixedSize(600, 290);
          auto *group = new QButtonGroup(curves);
          for (int i = 0; i < QVisemeCurveWidgetLite::kVisemeSlotCount; ++i) {
              auto *button = new QToolButton(curves);
              button->setCheckable(true);
              button->setGeometry(600 - 74, 12 + 22 * i, 68, 20);
              group->addButton(button, i);
          }
          curves->Init();

          const QStringList names = { QStringLiteral("AA"), QStringLiteral("OH"),
                                      QStringLiteral("MBP"), QStringLiteral("EE") };
          const double centres[] = { 0.3, 0.55, 0.15, 0.8 };
          for (int i = 0; i < names.size(); ++i) {
              curves->AddVisemeData(i, names.at(i));
              curves->GetVisemeUIData()[i].m_lstKeys = bellKeys(centres[i], 0.9 - 0.1 * i, 9);
              group->button(i)->setText(names.at(i));
          }
          curves->AddVisemeCurveEndPoints();
          group->button(0)->setChecked(true);
          curves->SetCurrentCheckButtonIndex(0);
          curves->GetVisemeUIData()[0].m_nSelectedKey = 3;
          curves->SetTimeLength(0.42f, 1.0f);

          QObject::connect(group, &QButtonGroup::idClicked, curves,
                           &QVisemeCurveWidgetLite::SetCurrentCheckButtonIndex);
          QObject::connect(
              curves, &QVisemeCurveWidgetLite::SelKeyValueChanged, [&ctx](float value) {
                  ctx.log(QStringLiteral("QVisemeCurveWidgetLite: SelKeyValueChanged %1")
                              .arg(double(value)));
              });
          QObject::connect(curves, &QVisemeCurveWidgetLite::ClearKeys, [&ctx] {
              ctx.log(QStringLiteral("QVisemeCurveWidgetLite: ClearKeys"));
          });
          QObject::connect(curves, &QVisemeCurveWidgetLite::ApplyVisemeData, [&ctx, curves] {
              QStringList used;
              const CVisemeUIData *data = curves->GetVisemeUIData();
              for (int i = 0; i < QVisemeCurveWidgetLite::kVisemeSlotCount; ++i) {
                  if (data[i].m_bInUse)
                      used << QStringLiteral("%1: %2 keys")
                                  .arg(data[i].m_strName)
                                  .arg(data[i].m_lstKeys.size());
              }
              ctx.log(QStringLiteral("QVisemeCurveWidgetLite: ApplyVisemeData {%1}")
                          .arg(used.join(QStringLiteral(", "))));
          });
          layout->addWidget(curves);
          layout->addStretch(1);
          return page;
      } })

GALLERY_ENTRY({ 80, "Containers", "QVisemeListWidget",
                "Viseme names to drag onto a viseme key curve widget (see the "
                "QVisemeCurveWidgetLite page, which has this list beside it). The drag carries "
                "application/x-visemelistitem with the name as text.",
                [](GalleryContext &ctx) -> QWidget * {
                    QVisemeListWidget *list = makeVisemeList();
                    list->setFixedSize(160, 240);
                    list->setCurrentRow(0);
                    QObject::connect(
                        list, &QListWidget::currentTextChanged, [&ctx](const QString &text) {
                            ctx.log(QStringLiteral("QVisemeListWidget: current %1").arg(text));
                        });
                    return list;
                } })

GALLERY_ENTRY({ 80, "Containers", "QVisemeButton",
                "A button dragged onto a viseme key curve widget to free its current slot. The "
                "drag carries application/x-visemebutton and nothing else.",
                [](GalleryContext &) -> QWidget * {
                    auto *row = new QWidget;
                    auto *layout = new QHBoxLayout(row);
                    QVisemeButton *button = makeVisemeButton();
                    button->setMinimumSize(110, 32);
                    layout->addWidget(button);
                    layout->addStretch(1);
                    return row;
                } })

GALLERY_ENTRY(
    { 80, "Containers", "QDiphoneListWidget",
      "Diphones of the current take. Right-click and choose Delete: the list asks its "
      "owner (here the gallery) to remove the current row.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *list = new QDiphoneListWidget;
          list->setFixedSize(180, 240);
          list->addItems({ QStringLiteral("sil-HH"), QStringLiteral("HH-EH"),
                           QStringLiteral("EH-L"), QStringLiteral("L-OW"), QStringLiteral("OW-W"),
                           QStringLiteral("W-ER"), QStringLiteral("ER-L"), QStringLiteral("L-D"),
                           QStringLiteral("D-sil") });
          list->setCurrentRow(3);
          QObject::connect(list, &QDiphoneListWidget::DeleteCurrentRow, [&ctx, list](int row) {
              ctx.log(QStringLiteral("QDiphoneListWidget: DeleteCurrentRow %1").arg(row));
              delete list->takeItem(row);
          });
          return list;
      } })
