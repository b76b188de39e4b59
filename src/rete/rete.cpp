#include "rete/rete.h"
