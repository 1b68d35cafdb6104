#ifndef QGROUPWIDGET_H
#define QGROUPWIDGET_H

#include "VelaExport.h"

#include <QList>
#include <QString>
#include <QWidget>

#include <functional>

class FlowLayout;
class QPushButton;
class QVBoxLayout;

// A collapsible section of a material-parameter panel: a flat, checkable title button with a
// "+"/"-" marker above a container holding the section's parameter widgets, its image widgets (in
// flowing rows) and nested sub-groups. Callers register creator functions; the widgets are built
// the first time the group is opened (at once when it is open already), each creator exactly once.
class VELA_WIDGETS_EXPORT QGroupWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    // The defaults let uic-generated forms, which pass only the parent, create a closed group.
    explicit QGroupWidget(QWidget *parent, QString strText = QString(), bool bChecked = false);
    ~QGroupWidget() override;

    QString text() const;
    // Replaces the caption; the group, its title button and its container are renamed after it.
    void setText(const QString &strText);

    QGroupWidget *ParentGroup() const;
    void SetParent(QGroupWidget *pGroup);

    QWidget *GetNumericalContainer() const;
    QVBoxLayout *GetNumericalLayout() const;

    // Registers a widget factory and the query that decides whether its widget is shown. An empty
    // visibility query counts as always visible. Runs at once when the group is open.
    void AddWidgetCreator(std::function<QWidget *()> fnCreate, std::function<bool()> fnVisible);
    // Nests pGroup below this group; it is placed (and shown when it has something visible) when
    // this group's creators run.
    void AddSubGroup(QGroupWidget *pGroup);
    // Runs the pending creators in registration order, under a wait cursor, and places what they
    // return: sub-groups and numerical widgets one below the other, runs of consecutive image
    // widgets in one flowing row container. Anything else is deleted later; a null result, this
    // group itself or a widget that contains it is skipped.
    void CreateSubWidgets();
    void PlaceNumericalWidget(QWidget *pWidget);
    void PlaceImageWidget(QWidget *pWidget);
    void CreateImageContainer();
    // Takes pWidget out of the container's layouts without deleting it.
    void RemoveSubWidget(QWidget *pWidget);
    bool HasSubWidget() const;
    // True when a pending creator would be shown, or a placed sub-group, numerical widget or (in
    // the current image container) image widget is visible by the host's account.
    bool HasVisibleChildWidget() const;

    void SetTitleButtonMargins(int nLeft, int nTop, int nRight, int nBottom);
    void SetNumericalContainerMargins(int nLeft, int nTop, int nRight, int nBottom);
    void SetNumericalContainerSpacing(int nSpacing);

signals:
    void Clicked(bool bCliecked);

protected:
    void paintEvent(QPaintEvent *event) override;

private slots:
    void OnTitleButtonClicked(bool bChecked);

private:
    bool IsOpen() const;
    QString TitleText(bool bOpen) const;

    QWidget *m_pNumericalContainer = nullptr;
    QVBoxLayout *m_pNumericalLayout = nullptr;
    FlowLayout *m_pCurrentImageLayout = nullptr;
    bool m_bImageRun = false;
    QList<std::function<QWidget *()>> m_listCreators;
    QList<std::function<bool()>> m_listVisibleQueries;
    QList<QWidget *> m_listWidgets; // kept empty
    QList<QGroupWidget *> m_listSubGroups;
    QString m_strText;
    QGroupWidget *m_pParentGroup = nullptr;
    QPushButton *m_pTitleButton = nullptr;
};

#endif // QGROUPWIDGET_H
