#ifndef VELAWIDGETDESCRIPTOR_H
#define VELAWIDGETDESCRIPTOR_H

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

// What Designer needs to know about one widget class. Every descriptor of the collection is this
// class with its own row; the named subclasses only give each descriptor its own class name.
class VelaWidgetDescriptor : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    struct Row
    {
        const char *name;
        const char *includeFile;
        bool container;
        const char *domXml;
        QWidget *(*create)(QWidget *parent);
    };

    VelaWidgetDescriptor(const Row &row, QObject *parent);
    ~VelaWidgetDescriptor() override;

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget *createWidget(QWidget *parent) override;
    bool isInitialized() const override;
    void initialize(QDesignerFormEditorInterface *core) override;
    QString domXml() const override;
    QString codeTemplate() const override;

private:
    const Row &m_row;
    bool m_initialized = false;
};

// Creates the descriptors of every widget in the collection's fixed order, as children of parent.
QList<QDesignerCustomWidgetInterface *> CreateVelaDescriptors(QObject *parent);

#endif // VELAWIDGETDESCRIPTOR_H
