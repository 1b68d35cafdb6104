// Random sequences of the widgets' own properties, methods and user input, with random arguments.
#include "FuzzSupport.h"

#include <QApplication>
#include <QColor>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>

#include <dlfcn.h>
#include <memory>

using namespace VelaFuzz;

// True for meta-objects that this library defines (not Qt's).
static bool isLibraryClass(const QMetaObject *mo)
{
    Dl_info info;
    if (!dladdr(static_cast<const void *>(mo), &info) || !info.dli_fname)
        return false;
    return QByteArray(info.dli_fname).contains("VelaQtCustomWidgets");
}

static bool isGeometric(const char *name)
{
    const QByteArray lower = QByteArray(name).toLower();
    for (const char *word : { "spacing", "width", "height", "size", "margin", "indent" }) {
        if (lower.contains(word))
            return true;
    }
    return false;
}

static QVariant randomValue(int type, Input &in)
{
    switch (type) {
    case QMetaType::Bool:
        return in.boolean();
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return in.integer();
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return uint(in.integer());
    case QMetaType::Double:
        return in.real();
    case QMetaType::Float:
        return float(in.real());
    case QMetaType::QString:
        return in.text(24);
    case QMetaType::QColor:
        return QColor::fromRgb(in.byte(), in.byte(), in.byte(), in.byte());
    case QMetaType::QSize:
        return QSize(in.integer(), in.integer());
    default:
        return QVariant();
    }
}

static void invokeRandomSlot(QObject *object, const QVector<QMetaMethod> &methods, Input &in)
{
    if (methods.isEmpty())
        return;
    const QMetaMethod method = methods.at(in.index(methods.size()));
    if (qEnvironmentVariableIsSet("VELA_FUZZ_TRACE"))
        qInfo("  call %s", method.methodSignature().constData());
    QVariant values[10];
    QGenericArgument args[10];
    for (int i = 0; i < method.parameterCount() && i < 10; ++i) {
        values[i] = randomValue(method.parameterType(i), in);
        if (!values[i].isValid())
            return;
        args[i] = QGenericArgument(values[i].typeName(), values[i].constData());
    }
    method.invoke(object, Qt::DirectConnection, args[0], args[1], args[2], args[3], args[4],
                  args[5], args[6], args[7], args[8], args[9]);
}

static void sendRandomInput(QWidget *widget, Input &in)
{
    const QPoint pos(in.integer() % 400, in.integer() % 300);
    const Qt::MouseButton button = in.boolean() ? Qt::LeftButton : Qt::RightButton;
    switch (in.byte() % 6) {
    case 0: {
        QMouseEvent press(QEvent::MouseButtonPress, pos, button, button, Qt::NoModifier);
        QApplication::sendEvent(widget, &press);
        break;
    }
    case 1: {
        QMouseEvent move(QEvent::MouseMove, pos, Qt::NoButton, button, Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
        break;
    }
    case 2: {
        QMouseEvent release(QEvent::MouseButtonRelease, pos, button, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &release);
        break;
    }
    case 3: {
        QMouseEvent dbl(QEvent::MouseButtonDblClick, pos, button, button, Qt::NoModifier);
        QApplication::sendEvent(widget, &dbl);
        break;
    }
    case 4: {
        QWheelEvent wheel(pos, widget->mapToGlobal(pos), QPoint(), QPoint(0, in.integer() % 1000),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &wheel);
        break;
    }
    default: {
        static const int keys[] = { Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Up, Qt::Key_Down,
                                    Qt::Key_Delete, Qt::Key_Escape, Qt::Key_5,  Qt::Key_Minus };
        const int key = keys[in.index(8)];
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString());
        QApplication::sendEvent(widget, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, QString());
        QApplication::sendEvent(widget, &release);
        break;
    }
    }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const RunScope scope;
    Input in(data, size);
    const QVector<VelaCatalog::Entry> &factories = VelaCatalog::Widgets();
    const VelaCatalog::Entry &entry = factories.at(in.index(factories.size()));
    // VELA_FUZZ_TRACE=1 prints what a reproducer does.
    static const bool trace = qEnvironmentVariableIsSet("VELA_FUZZ_TRACE");
    if (trace)
        qInfo("widget %s", qPrintable(entry.name));
    std::unique_ptr<QWidget> widget(entry.create());
    widget->resize(320, 200);
    widget->show();

    QVector<QMetaProperty> properties;
    QVector<QMetaMethod> methods;
    for (const QMetaObject *mo = widget->metaObject(); mo && isLibraryClass(mo);
         mo = mo->superClass()) {
        for (int i = mo->propertyOffset(); i < mo->propertyCount(); ++i) {
            if (mo->property(i).isWritable())
                properties.append(mo->property(i));
        }
        for (int i = mo->methodOffset(); i < mo->methodCount(); ++i) {
            const QMetaMethod method = mo->method(i);
            if (method.access() == QMetaMethod::Public
                && method.methodType() != QMetaMethod::Signal)
                methods.append(method);
        }
    }

    while (!in.atEnd()) {
        switch (in.byte() % 3) {
        case 0:
            if (!properties.isEmpty()) {
                const QMetaProperty property = properties.at(in.index(properties.size()));
                // Enumerations take one of their own values, as any caller of the setter would.
                const QMetaEnum enumerator = property.enumerator();
                QVariant value = property.isEnumType() && enumerator.keyCount() > 0
                    ? QVariant(enumerator.value(in.index(enumerator.keyCount())))
                    : randomValue(property.userType(), in);
                // Sizes and gaps make the window as large as asked, as with any Qt widget: keep
                // them to what a screen can show.
                if (value.type() == QVariant::Int && isGeometric(property.name()))
                    value = value.toInt() % 4096;
                if (trace)
                    qInfo("  property %s = %s", property.name(), qPrintable(value.toString()));
                if (value.isValid())
                    property.write(widget.get(), value);
            }
            break;
        case 1:
            invokeRandomSlot(widget.get(), methods, in);
            break;
        default:
            sendRandomInput(widget.get(), in);
            break;
        }
    }
    return 0;
}
