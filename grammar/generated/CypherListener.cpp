
// Generated from Cypher.g4 by ANTLR 4.10


#include "CypherListener.h"


using namespace vorn;

