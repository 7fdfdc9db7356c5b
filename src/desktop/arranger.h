#pragma once

#include <QLayout>
#include <functional>

#include "toolkit/arrangement.h"

class QWidget;

namespace brindlepage {

// The widget that shows a control.
using WidgetOf = std::function<QWidget*(Control& control)>;

// Lays the widgets out as the arrangement tells. `group` is a column, a row or a grid; the
// frames in it get layouts of their own.
QLayout* LayOut(const Arrangement& group, const WidgetOf& widget_of);

// Whether it is a column, a row or a grid.
bool IsGroup(const Arrangement& part);

// Whether any part of it wants a share of the room that is left over, springs apart.
bool WantsRoom(const Arrangement& part);

// Every control in the arrangement, in its order.
void ForEachControl(const Arrangement& part, const std::function<void(Control&)>& visit);

}  // namespace brindlepage
