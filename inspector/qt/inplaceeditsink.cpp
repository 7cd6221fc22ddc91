#include <inplaceeditsink.h>

IInPlaceEditSink::~IInPlaceEditSink() = default;
